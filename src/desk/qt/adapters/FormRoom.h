#pragma once

#include <QRect>
#include <map>

#include "desk/qt/adapters/EdgeLayout.h"
#include "host/forms/Form.h"

namespace quillon {

/// Where the controls of a form stand in a window of another size than the form's own. The form hears nothing
/// of it: its places stay what they are.
class FormRoom {
 public:
  /// The size, in twips, that a form takes in a room: all of it, but no less than its controls need. A form
  /// on which places are measures, as on the face of a cheque, or are worked out, as a graph's, keeps its
  /// own.
  static EdgeLayout::Size SizeIn(const Form& form, EdgeLayout::Size room);

  /// Lays the form out as it is now. True when a place has changed.
  bool Lay(const Form& form, EdgeLayout::Size size);

  /// Whether the form has another size than its own.
  bool IsLaid() const { return !places_.empty(); }

  /// In pixels.
  QRect PlaceOf(const Control& control) const;

 private:
  void LayInside(const Control& holder, EdgeLayout::Size own, EdgeLayout::Size size);

  std::map<const Control*, EdgeLayout::Box> places_;  // none while the form has its own size
};

}  // namespace quillon
