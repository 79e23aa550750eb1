#include "desk/qt/adapters/AdapterFactory.h"

#include "desk/qt/adapters/BarAdapter.h"
#include "desk/qt/adapters/ButtonAdapter.h"
#include "desk/qt/adapters/ChartAdapter.h"
#include "desk/qt/adapters/CheckBoxAdapter.h"
#include "desk/qt/adapters/ComboAdapter.h"
#include "desk/qt/adapters/FrameAdapter.h"
#include "desk/qt/adapters/GridAdapter.h"
#include "desk/qt/adapters/LabelAdapter.h"
#include "desk/qt/adapters/ListAdapter.h"
#include "desk/qt/adapters/OptionAdapter.h"
#include "desk/qt/adapters/PeriodAdapter.h"
#include "desk/qt/adapters/ScrollBarAdapter.h"
#include "desk/qt/adapters/SelectionGridAdapter.h"
#include "desk/qt/adapters/StandardButtonsAdapter.h"
#include "desk/qt/adapters/StripAdapter.h"
#include "desk/qt/adapters/SurfaceAdapter.h"
#include "desk/qt/adapters/TextAreaAdapter.h"
#include "desk/qt/adapters/TextBoxAdapter.h"
#include "desk/qt/adapters/TextFieldAdapter.h"

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
