#pragma once

#include <string>

#include "host/values/Font.h"

namespace quillon {

/// The printer. Positions are twips from the page's top left corner; a text lands with its top left at
/// CurrentX and CurrentY. A job begins with the first Print or NewPage and ends with EndDoc.
class IPrinter {
 public:
  static constexpr int kA4 = 9;
  static constexpr int kPortrait = 1;
  static constexpr int kLandscape = 2;

  IPrinter() = default;
  IPrinter(const IPrinter&) = delete;
  IPrinter& operator=(const IPrinter&) = delete;
  virtual ~IPrinter() = default;

  /// The printer of this name leaves a PDF. It is one among the others, on every machine.
  static constexpr const char* kPdfFile = "PDF file";

  static constexpr int kMonochrome = 1;
  static constexpr int kColor = 2;

  /// The device that jobs go to; what is printed for one lies in a PDF too.
  std::string DeviceName = kPdfFile;
  int PaperSize = kA4;
  int Orientation = kPortrait;

  /// Asked of the device; a PDF keeps its colours.
  int ColorMode = kColor;
  quillon::Font Font;
  double CurrentX = 0;
  double CurrentY = 0;

  /// Whether a font of this name prints as itself, or as one of the same widths.
  virtual bool HasFont(const std::string& name) const = 0;

  /// Twips, in the current font.
  virtual double TextWidth(const std::string& text) const = 0;
  virtual double TextHeight(const std::string& text) const = 0;

  /// Inches to twips.
  static double ScaleX(double inches) { return inches * 1440; }

  /// With a line end CurrentY moves down one line and CurrentX to 0; without one CurrentX moves behind the
  /// text.
  virtual void Print(const std::string& text, bool lineEnd = true) = 0;
  virtual void NewPage() = 0;

  /// Whether the finished pages are shown before they are printed; a mark for one job.
  bool SeeFirst = false;

  /// While one job of many follows the other nobody is told of each file.
  bool IsQuiet = false;

  /// Finishes the job; false when its user saw the pages and discarded them. Throws HostError when the file
  /// cannot be written.
  virtual bool EndDoc() = 0;

  /// What is known of the job that was handed over last.
  enum class JobFate {
    kNothingSent,  ///< no page has left since ForgetJob
    kUnderWay,     ///< its queue has it
    kPrinted,      ///< its device has done it, or it lies whole in its PDF
    kInDoubt       ///< refused, held back, given up or not known any more
  };

  /// Begins anew: no job was handed over yet.
  virtual void ForgetJob() = 0;

  /// Asks the queue; `why` takes, in words, what keeps a job in doubt where that was not told already.
  virtual JobFate FateOfJob(std::string& why) = 0;

  /// The name that its queue has given the job that was handed over last; empty where it went to none.
  virtual std::string JobName() const = 0;

  /// Takes a job of that name out of its queue, if it is still there.
  virtual void TakeBackJob(const std::string& name) = 0;

  /// Drops the job at hand, if there is one: no file, nothing to the device.
  virtual void KillDoc() = 0;
};

}  // namespace quillon
