#include "desk/qt/AdapterFactory.h"

#include "desk/qt/BarAdapter.h"
#include "desk/qt/ButtonAdapter.h"
#include "desk/qt/ChartAdapter.h"
#include "desk/qt/CheckBoxAdapter.h"
#include "desk/qt/ComboAdapter.h"
#include "desk/qt/FrameAdapter.h"
#include "desk/qt/GridAdapter.h"
#include "desk/qt/LabelAdapter.h"
#include "desk/qt/ListAdapter.h"
#include "desk/qt/OptionAdapter.h"
#include "desk/qt/PeriodAdapter.h"
#include "desk/qt/ScrollBarAdapter.h"
#include "desk/qt/SelectionGridAdapter.h"
#include "desk/qt/StandardButtonsAdapter.h"
#include "desk/qt/StripAdapter.h"
#include "desk/qt/SurfaceAdapter.h"
#include "desk/qt/TextAreaAdapter.h"
#include "desk/qt/TextBoxAdapter.h"
#include "desk/qt/TextFieldAdapter.h"

namespace quillon {

namespace {

using Maker = Adapter* (*)(Control&, QWidget*);

/// Nothing when the control is of another kind.
template <class Model, class Made>
Adapter* MakeFor(Control& control, QWidget* parent) {
  auto* model = dynamic_cast<Model*>(&control);
  return model != nullptr ? new Made(*model, parent) : nullptr;
}

Adapter* MakeForText(Control& control, QWidget* parent) {
  auto* box = dynamic_cast<TextBox*>(&control);
  if (box == nullptr) return nullptr;
  if (box->MultiLine) return new TextAreaAdapter(*box, parent);
  return new TextBoxAdapter(*box, parent);
}

constexpr Maker kMakers[] = {
    MakeFor<Label, LabelAdapter>,
    MakeFor<CommandButton, ButtonAdapter>,
    MakeFor<CheckBox, CheckBoxAdapter>,
    MakeFor<OptionButton, OptionAdapter>,
    MakeForText,
    MakeFor<CTextPlus, TextFieldAdapter>,
    MakeFor<ComboBox, ComboAdapter>,
    MakeFor<ListBox, ListAdapter>,
    MakeFor<Frame, FrameAdapter>,
    MakeFor<PictureBox, SurfaceAdapter>,
    MakeFor<CPeriod, PeriodAdapter>,
    MakeFor<ScrollBar, ScrollBarAdapter>,
    MakeFor<CButtonBar, BarAdapter>,
    MakeFor<CStdButtons, StandardButtonsAdapter>,
    MakeFor<CMStrip, StripAdapter>,
    MakeFor<GridModel, GridAdapter>,
    MakeFor<CSelGrid, SelectionGridAdapter>,
    MakeFor<MSChart, ChartAdapter>,
};

}  // namespace

Adapter* AdapterFactory::Make(Control& control, QWidget* parent) {
  for (const Maker make : kMakers) {
    if (Adapter* made = make(control, parent)) return made;
  }
  return nullptr;
}

}  // namespace quillon
