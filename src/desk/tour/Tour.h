#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

#include "desk/tour/TourScript.h"

namespace quillon {

class DeskWindow;
class QtRuntime;

/// What a tour does, on the firm of which folder, and where its pictures go.
struct TourPlan {
  std::vector<TourAct> Acts;
  QString Firm;
  QString Pictures;
};

/// Walks a desk by the acts of a tour. An act begins when the desk has nothing left to do, also while a
/// dialog waits, as a person would begin it.
class Tour : public QObject {
 public:
  Tour(QtRuntime& runtime, DeskWindow& desk, TourPlan plan);

  /// Begins once the application runs. Closes the desk when all acts were done; the first that fails ends the
  /// process with status 1.
  void Start();

  /// Told before each act.
  std::function<void(const TourAct&)> OnAct;

 private:
  void Next();
  void Do(const TourAct& act);
  void Open();
  void Press(const QString& keys);
  void See(const QString& wanted) const;
  void Draw(const QString& name) const;
  [[noreturn]] static void Fail(const TourAct& act, const QString& why);

  /// The name and title of what has the keys.
  QString Here() const;

  QtRuntime& runtime_;
  DeskWindow& desk_;
  TourPlan plan_;
  std::size_t at_ = 0;
  bool posted_ = false;
};

}  // namespace quillon
