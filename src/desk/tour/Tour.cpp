#include "desk/tour/Tour.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTest>
#include <cstdio>
#include <cstdlib>

#include "desk/qt/adapters/Scale.h"
#include "desk/qt/windows/DeskWindow.h"
#include "desk/qt/windows/QtRuntime.h"
#include "desk/tour/DeskSnapshot.h"
#include "desk/tour/ModuleDialogs.h"
#include "host/values/Errors.h"

namespace quillon {

namespace {

/// Where a key press arrives: a dialog has the keys from the moment it shows.
QWidget* KeyTarget(QWidget& desk) {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  QWidget* const dialog = QApplication::activeModalWidget();
  QWidget* const window = dialog != nullptr ? dialog : QApplication::activeWindow();
  if (window == nullptr) return &desk;
  return window->focusWidget() != nullptr ? window->focusWidget() : window;
}

}  // namespace

Tour::Tour(QtRuntime& runtime, DeskWindow& desk, TourPlan plan)
    : runtime_(runtime), desk_(desk), plan_(std::move(plan)) {}

void Tour::Start() {
  // The event loop is about to sleep only when whatever the act before started has come to rest.
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
    if (posted_) return;
    posted_ = true;
    QMetaObject::invokeMethod(
        this, [this] { Next(); }, Qt::QueuedConnection);
  });
}

void Tour::Next() {
  posted_ = false;
  if (at_ == plan_.Acts.size()) {
    QAbstractEventDispatcher::instance()->disconnect(this);
    desk_.close();
    if (desk_.isVisible()) Fail(plan_.Acts.back(), QStringLiteral("a dialog is still open afterwards"));
    return;
  }
  const TourAct& act = plan_.Acts[at_++];
  if (OnAct) OnAct(act);
  try {
    Do(act);
  } catch (const HostError& error) {
    Fail(act, QString::fromStdString(error.what()));
  }
}

void Tour::Do(const TourAct& act) {
  if (act.What == QLatin1String("press")) {
    Press(act.Rest);
  } else if (act.What == QLatin1String("type")) {
    QTest::keyClicks(KeyTarget(desk_), act.Rest);
  } else if (act.What == QLatin1String("see")) {
    See(act.Rest);
  } else if (act.What == QLatin1String("ask")) {
    ShowModuleDialog(act.Rest);
  } else if (act.What == QLatin1String("open")) {
    Open();
  } else if (act.What == QLatin1String("window")) {
    const QStringList size = act.Rest.split(QLatin1Char(' '));
    desk_.resize(size.value(0).toInt() * Scale::Percent() / 100,
                 size.value(1).toInt() * Scale::Percent() / 100);
  } else {
    Draw(act.Rest);
  }
}

void Tour::Open() {
  const QString fault = desk_.OpenFirm(plan_.Firm);
  if (!fault.isEmpty()) throw HostError(fault.toStdString());
}

void Tour::Draw(const QString& name) const {
  const QString file = plan_.Pictures + QLatin1Char('/') + name + QStringLiteral(".png");
  if (!DeskSnapshot(desk_).save(file))
    throw HostError("The picture " + file.toStdString() + " cannot be written");
}

void Tour::Press(const QString& keys) {
  for (const QString& name : keys.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const QKeySequence sequence = QKeySequence::fromString(name);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown) {
      throw HostError("There is no key \"" + name.toStdString() + "\"");
    }
    QTest::keyClick(KeyTarget(desk_), sequence[0].key(), sequence[0].keyboardModifiers());
  }
}

QString Tour::Here() const {
  if (const QWidget* dialog = QApplication::activeModalWidget()) {
    return QStringList{dialog->objectName(), dialog->windowTitle(), dialog->accessibleDescription()}.join(
        QLatin1Char(' '));
  }
  const FormPtr form = runtime_.ActiveForm();
  return form ? QString::fromStdString(form->Name() + " " + form->Caption()) : desk_.windowTitle();
}

void Tour::See(const QString& wanted) const {
  if (!Here().contains(wanted)) {
    throw HostError("\"" + wanted.toStdString() + "\" should have the keys, \"" + Here().toStdString() +
                    "\" has them");
  }
}

void Tour::Fail(const TourAct& act, const QString& why) {
  std::fprintf(stderr, "Line %d of %s, \"%s %s\": %s\n", act.Line, qPrintable(act.File), qPrintable(act.What),
               qPrintable(act.Rest), qPrintable(why));
  // Whatever still waits for an answer would wait for ever.
  std::_Exit(1);
}

}  // namespace quillon
