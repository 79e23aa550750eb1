#pragma once

#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/forms/Form.h"
#include "host/values/Date.h"

namespace quillon {

class CPickList;
class GridModel;
class IPrinter;
class Menu;
class PrintSetup;
struct PrinterDevice;

/// A message box as it is asked for. Buttons count from 1.
struct MessageRequest {
  std::string Text;
  std::string Icon;  ///< "Q", "W", "I", "E" or empty
  std::vector<std::string> Buttons;
  std::string Title;
  int Default = 1;
  std::string Details{};  ///< what only an expert reads; shown when it is asked for
};

struct InputRequest {
  std::string Prompt;
  std::string Title;
  std::string Text;  ///< what the box starts with
};

struct FileRequest {
  bool Save = false;
  std::string Title;
  std::string Filter;  ///< "XML Files (*.xml)|*.xml|All Files (*.*)|*.*"
  std::string Path;
};

struct DateRequest {
  std::string Title;
  std::string Caption;
  bool Single = false;
  Date First;
  Date Second;
};

struct PartiesRequest {
  std::string Alias = "b";
  std::string Clause;
  std::string Caption;
  std::string OrderBy;
  std::string JoinCnd;
};

/// Watches the events of the runtime, one inside the other where a modal form is up.
class IEventWatch {
 public:
  IEventWatch() = default;
  IEventWatch(const IEventWatch&) = delete;
  IEventWatch& operator=(const IEventWatch&) = delete;
  virtual ~IEventWatch() = default;

  virtual void EventBegins() = 0;

  /// `failure` is what was told of the first error in the event; empty when there was none.
  virtual void EventEnds(const std::string& failure) = 0;
};

/// The forms runtime: carries every form through its life, keeps the order of the shown forms, delivers
/// queued keys, and asks the user. A maker (the window, the driver) supplies the waiting and the asking.
class Runtime {
 public:
  Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;
  virtual ~Runtime();

  // --- Forms

  /// Runs the form's Load once.
  void Load(const FormPtr& form);

  /// Loads and shows; a modal show returns when the form is hidden or unloaded. A form with an owner is
  /// unloaded with it.
  void Show(const FormPtr& form, bool modal = false, const FormPtr& owner = nullptr);

  /// Ends a modal show and keeps the form loaded.
  void Hide(Form& form);

  /// Closes what stands on the form first, the last opened first, and what it owns with it. False when one of
  /// them refused in its QueryUnload: then the form stays.
  bool Unload(Form& form, UnloadMode mode = UnloadMode::Code);

  /// For the length of a block forms are on their way out: when the one above them goes they are not brought
  /// up for that, only to be closed in turn.
  class Closing {
   public:
    Closing(Runtime& runtime, std::vector<FormPtr> forms);
    Closing(const Closing&) = delete;
    Closing& operator=(const Closing&) = delete;
    ~Closing();

   private:
    Runtime& runtime_;
    std::size_t before_;
  };

  /// The loaded forms of one origin, in the order of loading.
  std::vector<FormPtr> Forms(Form::Origin origin) const;
  std::vector<FormPtr> AllForms() const { return loaded_; }

  /// The loaded forms that stand on this one, in the order of loading.
  std::vector<FormPtr> StandingOn(const Form& form) const;

  /// The modal form on top, otherwise the form shown last; nothing when none is shown.
  FormPtr ActiveForm() const;

  /// Whether a modal form on top keeps the user from this one.
  bool IsCovered(const Form& form) const;

  /// Brings a shown form to the front.
  void BringToFront(Form& form);

  /// Waits while a modeless window that a handler opened is on the screen.
  void WaitWhileVisible(Form& form);

  // --- Events

  /// Runs what a person did: an error that no handler caught is reported, the event abandoned. Refused
  /// passes.
  void Act(const std::function<void()>& act);

  /// As long as it lives a command or an event is carried out. Forms that were closed in it let go of what is
  /// heavy at its end, unless an outer one loaded or showed them and may still look at them.
  class Step {
   public:
    explicit Step(Runtime& runtime) : runtime_(runtime) { ++runtime_.step_; }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step();

   private:
    Runtime& runtime_;
  };

  /// An error of the event at hand was told, also one that a routine caught itself.
  void NoteFailure(const std::string& text);

  /// Nothing takes the watch off; it must outlive the events that it is told of.
  void SetEventWatch(IEventWatch* watch) { watch_ = watch; }

  /// Lets queued keys and repaints through.
  void DoEvents();

  /// Queues keys: plain characters and "{TAB}", "{ENTER}", "{ESC}", "{F7}" …; they go to the form on top when
  /// the event at hand is over, or at the next DoEvents.
  void SendKeys(const std::string& keys);
  void DeliverKeys();

  // --- Screen

  static constexpr long kTwipsPerPixel = 15;

  int MousePointer() const { return pointer_; }
  void SetMousePointer(int pointer);
  virtual long ScreenWidth() const = 0;   ///< twips
  virtual long ScreenHeight() const = 0;  ///< twips
  virtual void Beep() = 0;

  /// The busy state of a long job comes with its text, or goes.
  virtual void ShowBusy(bool on, const std::string& text) = 0;

  /// How far a long job has come; `whole` is 0 where that is not known. The windows repaint.
  virtual void ShowProgress(const std::string& /*text*/, std::int64_t /*done*/, std::int64_t /*whole*/) {}
  virtual void HideProgress() {}

  /// Tells what was done, in a word that nobody need answer.
  virtual void Say(const std::string& /*text*/) {}

  /// Shows a text of the cursor's cell whole, which the cell may be too narrow for.
  virtual void ShowCell(GridModel& /*grid*/, const std::string& text) { Say(text); }

  /// A statement waits for what another program is changing, or no longer. It may be called on another thread
  /// than the forms'.
  virtual void ShowWaiting(bool /*on*/) {}

  /// The width of a text in twips; both runtimes and the printer measure alike.
  virtual long TextWidth(const Font& font, const std::string& text) const = 0;
  virtual std::string ClipboardText() const = 0;
  virtual void SetClipboardText(const std::string& text) = 0;

  // --- Printer

  virtual IPrinter& Printer() = 0;

  /// All that can be printed to; the PDF file is the last.
  virtual std::vector<PrinterDevice> Printers() const = 0;

  /// Makes the one of this name the Printer. False when there is none: the Printer stays what it is.
  bool UsePrinter(const std::string& deviceName);

  /// Prints the form on one page of the Printer's paper, a job of its own: what its user sees, drawn anew
  /// with its texts as texts, twip for twip. What does not fit on the page is cut off.
  virtual void PrintForm(Form& form);

  /// Throws MissingFontError unless the font, or one of the same widths, is on the machine.
  void RequireFont(const std::string& name);

  // --- Asking

  /// The number of the button taken.
  virtual int AskMessage(const MessageRequest& request) = 0;
  virtual bool AskInput(const InputRequest& request, std::string& reply) = 0;
  virtual bool AskFile(const FileRequest& request, std::string& path) = 0;
  virtual bool AskFont(Font& font) = 0;
  virtual bool AskDate(DateRequest& request) = 0;
  virtual bool AskPick(const CPickList& list, std::size_t& item) = 0;
  virtual bool AskParties(PartiesRequest& request) = 0;
  virtual bool AskPrint(PrintSetup& setup) = 0;

  /// Tells the keys of a form, or what stands under another context than 0.
  virtual void ShowHelp(Form& /*form*/, int /*context*/) {}

  /// The item taken, counted from 0; below 0 when the menu was left.
  virtual int AskPopup(Form& form, Menu& menu, long left, long top) = 0;

  /// What rose to the runtime, or reached gApp->ReportError with the name of its routine.
  virtual void TellError(const std::string& routine, Form* form, const std::exception& error) = 0;

 protected:
  enum class Happening { Load, Show, Hide, Unload };

  /// For the log of a driver and the windows of a desk.
  virtual void FormHappened(Happening /*what*/, Form& /*form*/) {}
  virtual void PointerChanged(int /*pointer*/) {}
  virtual void Repaint() {}

  /// Handles the user's acts until `done` says so.
  virtual void Wait(const std::function<bool()>& done) = 0;

 private:
  void End(Form& form);
  /// A cell under edit in a window that a person closes: stored while it is valid, else lost only if he says
  /// so.
  bool LetsGoOfEdit(const Form& form);
  bool UnloadLastFirst(std::vector<FormPtr> forms, UnloadMode mode);
  std::vector<FormPtr> OwnedBy(const Form& form) const;
  void UpdateActive();
  void RunModal(const FormPtr& form);
  void Press(const std::string& name);
  void EndEvent();
  void NoteStep(const Form& form);

  std::vector<FormPtr> loaded_;
  std::vector<FormPtr> shown_;  // the form shown last is the last
  std::vector<FormPtr> closing_;
  std::weak_ptr<Form> active_;
  int step_ = 0;
  std::map<const Form*, int> steps_;  // the outermost that loaded or showed a form, of those loaded
  std::vector<std::pair<std::weak_ptr<Form>, int>> closed_;
  std::deque<std::string> keys_;
  std::vector<std::string> failures_;  // of the events at hand, the innermost last
  IEventWatch* watch_ = nullptr;
  int pointer_ = kPointerDefault;
};

extern Runtime* gRuntime;

}  // namespace quillon
