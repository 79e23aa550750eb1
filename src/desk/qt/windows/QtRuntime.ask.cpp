#include "desk/qt/windows/QtRuntime.h"

#include <QMenu>

#include "desk/print/Fonts.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/dialogs/DateDialog.h"
#include "desk/qt/dialogs/FontDialog.h"
#include "desk/qt/dialogs/InputDialog.h"
#include "desk/qt/dialogs/KeysDialog.h"
#include "desk/qt/dialogs/MessageDialog.h"
#include "desk/qt/dialogs/PartyDialog.h"
#include "desk/qt/dialogs/PickDialog.h"
#include "desk/qt/dialogs/PrintDialog.h"
#include "desk/qt/dialogs/ToolkitDialogs.h"
#include "desk/qt/windows/FormView.h"
#include "desk/qt/windows/SightWindow.h"
#include "host/controls/Menu.h"
#include "host/values/ErrorText.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

/// "XML Files (*.xml)|*.xml|All Files (*.*)|*.*" as the toolkit wants it.
QString FilterOf(const std::string& filter) {
  const std::vector<std::string> parts = text::Split(filter, "|");
  QStringList filters;
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
    const QString name = QString::fromStdString(parts[i]).section(QLatin1Char('('), 0, 0).trimmed();
    const QString masks = QString::fromStdString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
    filters << name + QStringLiteral(" (") + masks + QStringLiteral(")");
  }
  return filters.join(QStringLiteral(";;"));
}

}  // namespace

int QtRuntime::AskMessage(const MessageRequest& request) {
  const PointerRest rest(*this);
  return MessageDialog(request, TopWindow()).Ask();
}

bool QtRuntime::AskInput(const InputRequest& request, std::string& reply) {
  const PointerRest rest(*this);
  InputDialog dialog(request, TopWindow());
  if (dialog.exec() != QDialog::Accepted) return false;
  reply = dialog.Text();
  return true;
}

bool QtRuntime::AskFile(const FileRequest& request, std::string& path) {
  const PointerRest rest(*this);
  const QString title = QString::fromStdString(request.Title);
  const QString start = QString::fromStdString(request.Path);
  const QString filter = FilterOf(request.Filter);
  const QString chosen = request.Save ? ToolkitDialogs::SaveFile(TopWindow(), title, start, filter)
                                      : ToolkitDialogs::OpenFile(TopWindow(), title, start, filter);
  if (chosen.isEmpty()) return false;
  path = chosen.toStdString();
  return true;
}

bool QtRuntime::AskFont(Font& font) {
  const PointerRest rest(*this);
  FontDialog dialog(font, TopWindow());
  if (dialog.exec() != QDialog::Accepted) return false;
  font = dialog.Chosen();
  return true;
}

bool QtRuntime::AskDate(DateRequest& request) {
  const PointerRest rest(*this);
  DateDialog dialog(request, TopWindow());
  if (dialog.exec() != QDialog::Accepted) return false;
  request.First = dialog.First();
  request.Second = dialog.Second();
  return true;
}

bool QtRuntime::AskPick(const CPickList& list, std::size_t& item) {
  const PointerRest rest(*this);
  PickDialog dialog(list, TopWindow());
  if (dialog.exec() != QDialog::Accepted) return false;
  item = dialog.Item();
  return true;
}

bool QtRuntime::AskParties(PartiesRequest& request) {
  const PointerRest rest(*this);
  PartyDialog dialog(request, TopWindow());
  if (dialog.exec() != QDialog::Accepted) return false;
  request = dialog.Answer();
  return true;
}

bool QtRuntime::AskPrint(PrintSetup& setup) {
  const PointerRest rest(*this);
  PrintDialog dialog(setup, Printers(), TopWindow());
  if (dialog.exec() != QDialog::Accepted) return false;
  dialog.TakeInto(setup);
  return true;
}

bool QtRuntime::AskSight(const ReportPages& pages) {
  const PointerRest rest(*this);
  return SightWindow(pages, printer_.DeviceName, TopWindow()).exec() == QDialog::Accepted;
}

void QtRuntime::ShowHelp(Form& form, int context) {
  const PointerRest rest(*this);
  KeysDialog(&form, context, TopWindow()).exec();
}

int QtRuntime::AskPopup(Form& form, Menu& menu, long left, long top) {
  const PointerRest rest(*this);
  QMenu shown(TopWindow());
  for (const std::string& item : menu.Items) shown.addAction(QString::fromStdString(item));
  if (!shown.actions().isEmpty()) shown.setActiveAction(shown.actions().front());
  const QPoint place(Scale::Px(left), Scale::Px(top));
  FormView* const view = ViewOf(form);
  QPoint corner = view != nullptr ? view->mapToGlobal(place) : place;
  // A menu of the bar opens upwards, so that its button stays in sight.
  if (view != nullptr && place.y() > view->height() / 2) corner.ry() -= shown.sizeHint().height();
  QAction* const taken = shown.exec(corner);
  return static_cast<int>(shown.actions().indexOf(taken));
}

void QtRuntime::TellError(const std::string& routine, Form* form, const std::exception& error) {
  MessageRequest request;
  const std::string where = form != nullptr ? form->Caption() : std::string();
  request.Text = ErrorText(error);
  request.Details = ErrorDetails(error);
  if (!request.Details.empty() && !routine.empty()) {
    request.Details += "\n" + (where.empty() ? "" : where + ", ") + routine;
  }
  request.Icon = "E";
  request.Buttons = {"OK"};
  request.Title = "Quillon";
  AskMessage(request);
}

void QtRuntime::OnPrinted(const std::string& file, int pages, int /*paper*/, int /*orientation*/) {
  if (printer_.DeviceName != IPrinter::kPdfFile || printer_.IsQuiet) return;
  MessageRequest request;
  request.Text = std::to_string(pages) + (pages == 1 ? " page lies" : " pages lie") + " in the file\n" + file;
  request.Icon = "I";
  request.Buttons = {"OK"};
  request.Title = "Quillon";
  AskMessage(request);
}

}  // namespace quillon
