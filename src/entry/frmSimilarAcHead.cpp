#include "entry/frmSimilarAcHead.h"

#include "host/controls/RedrawHold.h"
#include "host/data/CDataSet.h"
#include "host/forms/GridColumns.h"
#include "host/forms/GridRows.h"
#include "host/forms/Runtime.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"

namespace quillon {

frmSimilarAcHead::frmSimilarAcHead()
    : Form("frmSimilarAcHead"), lblMsg(*this, "lblMsg"), Grid(*this, "Grid"), Command1(*this, "Command1") {
  Member("StkMode", StkMode);
  Member("mhd", mhd);
  DesignControls();
  Command1.Click = [this] { gRuntime->Unload(*this); };
}

void frmSimilarAcHead::OnLoad() {
  if (StkMode) {
    Caption = "List of Similar Items";
    lblMsg.Caption = "Be careful! Following similar items already exist in Master: -";
  }
  Fill();
}

std::string frmSimilarAcHead::Query() const {
  const std::string from =
      StkMode ? "Select a.head,b.qsize as head2,a.code from StkHeads a Inner Join StkMaster b "
                "on a.code=b.qmcd"
              : "Select a.head,b.mst as head2,a.code from FAHeads a Inner Join FAMaster b on "
                "a.code=b.mcd";
  return from + " where a.PressHead like '" + mhd + "%' order by a.Code,a.SubCode";
}

void frmSimilarAcHead::SetColumns() {
  gStd->SetupGrid(Grid);
  SetColumnsInChars(Grid, {{0, StkMode ? "Item Name" : "Account Head", 42, kAlignLeft},
                           {1, StkMode ? "Size" : "Station", 20, kAlignLeft},
                           {2, "", 0, kAlignLeft}});
}

void frmSimilarAcHead::Fill() {
  const RedrawHold hold(Grid);
  Grid.Rows = 1;
  Grid.Cols = 3;
  SetColumns();
  GridRows rows(Grid);
  CDataSet heads;
  for (heads.Open(Query(), gSession->MainDb()); !heads.Eof(); heads.MoveNext()) {
    const int row = rows.Next();
    int col = 0;
    for (const char* field : {"head", "head2", "Code"}) {
      Grid.SetTextMatrix(row, col++, heads.Field(field).ToText());
    }
  }
  Grid.Rows = rows.Last() + 1;
  Grid.FixedRows = 1;
}

}  // namespace quillon
