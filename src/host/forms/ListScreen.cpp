#include "host/forms/ListScreen.h"

namespace quillon {

ListScreen::ListScreen(const ScreenSpec& spec, Origin origin)
    : ScreenForm(spec, origin), Grid(*this, "Grid") {
  Grid.DblClick = [this] { OpenCurrentRow(); };
  Grid.RowChange = [this](int row) { ShowAccountOfRow(row); };
  Grid.KeyDown = [this](KeyEvent& key) {
    if (key.KeyCode != keys::kEnter || key.Shift != 0) return;
    key.KeyCode = 0;
    OpenCurrentRow();
  };
  Grid.KeyPress = [this](int& character) {
    if (character == keys::kSlash) MStrip1.OpenMaster();
  };
}

void ListScreen::OpenCurrentRow() {
  const bool isRow = Grid.Row >= Grid.FixedRows && Grid.Row < Grid.Rows;
  if (isRow && Grid.IsRowVisible(Grid.Row)) OpenRow(Grid.Row);
}

void ListScreen::ShowAccountOfRow(int row) {
  if (row < Grid.FixedRows || row >= Grid.Rows) return;
  if (const long account = AccountOfRow(row); account >= 0) MStrip1.Code = account;
}

void ListScreen::PlaceGrid(long top) {
  Grid.Move(0, top, Width, ContentBottom() - top);
  Grid.Font = quillon::Font{"Tahoma", 9.75, false, false, false};
}

}  // namespace quillon
