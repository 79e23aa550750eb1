#pragma once

#include <string>

namespace quillon {

/// How a printer's pages are corrected, so that they land where they were asked for. It is kept for the user,
/// apart from all layouts.
class Calibration {
 public:
  /// What the user has measured on the proof sheet, in millimetres.
  struct Measured {
    double Left = 0;    ///< from the paper's left edge to the upper left cross
    double Top = 0;     ///< from its upper edge to that cross
    double Across = 0;  ///< from that cross to the upper right one
    double Down = 0;    ///< from that cross to the lower left one
  };

  /// What the proof sheet is drawn with; measured just so, nothing is corrected.
  static constexpr Measured kProof{20, 20, 150, 200};

  /// That of a printer; none for one without, and for one whose text is damaged.
  static Calibration Of(const std::string& printer);

  /// Throws HostError for what no printer does: more than a tenth too long or short, or 20 mm beside.
  static Calibration From(const Measured& measured);

  void Keep(const std::string& printer) const;

  /// What the printer was calibrated by; the proof sheet itself for one without.
  const Measured& Measures() const { return measured_; }
  bool IsNone() const;

  /// "0.5 mm left, 1 mm up, 99.8 % across, 100.1 % down": what the pages are moved and stretched by.
  std::string Words() const;

  /// What a place is multiplied by, and what is then added to it, in millimetres.
  double ScaleX() const { return kProof.Across / measured_.Across; }
  double ScaleY() const { return kProof.Down / measured_.Down; }
  double ShiftX() const { return kProof.Left - measured_.Left * ScaleX(); }
  double ShiftY() const { return kProof.Top - measured_.Top * ScaleY(); }

 private:
  Measured measured_ = kProof;
};

}  // namespace quillon
