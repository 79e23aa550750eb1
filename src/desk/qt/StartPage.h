#pragma once

#include <QWidget>
#include <functional>

namespace quillon {

/// What the main window shows while no firm is open.
class StartPage : public QWidget {
 public:
  explicit StartPage(QWidget* parent);

  std::function<void()> OnOpen;
  std::function<void()> OnSample;

 private:
  void AddButton(const QString& caption, const QString& icon, const std::function<void()>& pressed);
};

}  // namespace quillon
