#pragma once

#include <QWidget>
#include <functional>

class QLabel;

namespace quillon {

class PushButton;

/// What the main window shows while no screen is open: where to begin.
class StartPage : public QWidget {
 public:
  explicit StartPage(QWidget* parent);

  std::function<void()> OnOpen;
  std::function<void()> OnSample;
  std::function<void()> OnStatement;
  std::function<void()> OnAccounts;

  /// The ways on from the open firm; an empty name offers to open one.
  void ShowFirm(const QString& name);

  /// All anew, after the zoom has changed.
  void Replace();

 private:
  PushButton* AddButton(const QString& caption, const QString& icon, const std::function<void()>& pressed);

  QLabel* title_;
  QLabel* words_;
  PushButton* open_;
  PushButton* sample_;
  PushButton* statement_;
  PushButton* accounts_;
};

}  // namespace quillon
