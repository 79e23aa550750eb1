#include "desk/shell/UnfinishedWork.h"

namespace quillon {

namespace {

constexpr int kKeep = 1;
constexpr int kUndo = 2;

}  // namespace

UnfinishedWork::UnfinishedWork(DeskSession& session) : session_(session) { gRuntime->SetEventWatch(this); }

UnfinishedWork::~UnfinishedWork() { gRuntime->SetEventWatch(nullptr); }

std::vector<FirmLink> UnfinishedWork::Open() const {
  std::vector<FirmLink> open = session_.Books().Links();
  std::erase_if(open, [](const FirmLink& link) { return !link.Db->InTransaction(); });
  return open;
}

void UnfinishedWork::EventBegins() {
  std::set<CDbLink*>& open = before_.emplace_back();
  for (const FirmLink& link : Open()) open.insert(link.Db);
}

void UnfinishedWork::EventEnds(const std::string& failure) {
  if (before_.empty()) return;  // it began with another firm open
  const std::set<CDbLink*> before = before_.back();
  before_.pop_back();
  if (failure.empty()) return;
  for (const FirmLink& link : Open()) {
    if (!before.contains(link.Db)) Ask(link, failure);
  }
}

void UnfinishedWork::Ask(const FirmLink& link, const std::string& failure) {
  gRuntime->ShowBusy(false, "");
  gRuntime->SetMousePointer(kPointerDefault);
  MessageRequest question;
  question.Title = "Unfinished work";
  question.Text = failure + "\n\nWhat this step changed in " + link.Name + " is not yet kept.";
  question.Icon = "W";
  question.Buttons = {"Keep", "Undo"};
  question.Default = kUndo;
  try {
    if (gRuntime->AskMessage(question) == kKeep) {
      link.Db->CommitTrans();
    } else {
      link.Db->RollbackTrans();
    }
  } catch (const std::exception& error) {
    gRuntime->TellError("", gRuntime->ActiveForm().get(), error);
    if (link.Db->InTransaction()) link.Db->RollbackTrans();
  }
}

void UnfinishedWork::UndoAll() {
  for (const FirmLink& link : Open()) link.Db->RollbackTrans();
}

}  // namespace quillon
