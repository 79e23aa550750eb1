#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "graph/GraphCalendar.h"
#include "graph/GraphFigures.h"
#include "graph/GraphSeries.h"
#include "host/controls/CStdButtons.h"
#include "host/controls/ComboBox.h"
#include "host/controls/CommandButton.h"
#include "host/controls/ControlArray.h"
#include "host/controls/Label.h"
#include "host/controls/MSChart.h"
#include "host/controls/MSHFlexGrid.h"
#include "host/controls/PictureBox.h"
#include "host/controls/ScrollBar.h"
#include "host/data/CDataSet.h"
#include "host/forms/Form.h"
#include "host/services/FinYear.h"

namespace quillon {

/// "Graphical Representation": any amount over a period as a chart with a table of figures. It knows nothing
/// of what it draws; its caller sets queries with the fields gdate and gamt, a row for each date in their
/// order.
class frmGraph : public Form {
 public:
  frmGraph();

  // Set before the form loads; touching a control loads it.

  std::shared_ptr<FinYear> FYear;
  std::shared_ptr<FinYear> FYNext;
  std::shared_ptr<FinYear> FYPrev;
  Date RMinDate;
  Date RMaxDate;

  /// Of the period, of the same period a year before, and a year after or, in CompareMode, of the second
  /// measure. An empty one is no comparison.
  std::string GraphQry;
  std::string GraphQryPrv;
  std::string GraphQryNxt;

  /// "D", "M" or "Q": by day, month or quarter.
  std::string GraphType;

  /// Titles of the series in place of the years.
  std::string LTitlePrev;
  std::string LTitleCurrent;
  std::string LTitleNext;

  /// What the amounts are, and their unit where they are a quantity.
  std::string AmtTxt;
  std::string UnitTxt;

  /// "red,green,blue" of the first series.
  std::string gColor;

  /// 1: green and red of a graph of two measures.
  std::int16_t ChangeColor = 0;

  /// 1: two measures of one period in place of one measure of several years.
  std::int16_t CompareMode = 0;

  /// 0 plain figures, 1 running totals.
  std::int16_t CumFigures = 0;

  /// Every amount is multiplied by it on its way to the chart; at 0 all of them are 0.
  std::int16_t GraphNeg = 0;

  /// Reads a query into the year's rows: `YearAdd` is -1, 0 or 1. What fails is told, and the rows stay as
  /// far as they were filled.
  void ArrayData(const std::string& aQry, int YearAdd, CDbLink& Conn);

  /// Builds chart, table and title of the axis from the figures that were read.
  void UpdateGraph();

  /// The quarter of a month in the Indian financial year; empty for what is no month.
  Variant QuarterNo(int month) { return GraphCalendar::QuarterNo(month); }

  /// Lays the form out for the printer (true) or the screen.
  void PlaceControls(bool prnMode);

  Label lblTitle;
  ControlArray<Label> lblTitle1;
  PictureBox Picture1;
  ControlArray<Label> Label1;
  ControlArray<CommandButton> cmdGraphStyle;
  ControlArray<CommandButton> cmdPeriod;
  ControlArray<CommandButton> cmdCummlative;
  ComboBox cmbZoom;
  ControlArray<CommandButton> cmdCompare;
  ControlArray<CommandButton> cmdPrint;
  CommandButton cmdExit;
  PictureBox Picture2;
  MSChart Graph;
  ScrollBar HScroll1;
  ScrollBar VScroll1;
  PictureBox Picture3;
  MSHFlexGrid Grid;
  CStdButtons QuillonStdButtons1;

 protected:
  void OnLoad() override;
  void OnActivate() override;
  void OnUnload() override;
  void OnKeyDown(KeyEvent& key) override { OfferHotKey(key); }

 private:
  /// Twips of one unit of the scroll bars.
  static constexpr long kScrollUnit = 100;

  void DesignControls();
  void DesignPanel();
  void ConnectButtons();
  void ShowScreenParts(bool shown);
  void PlaceForScreen();
  void PlaceForPrinter();
  void PlaceHeadings();

  void ReadFirst();
  void ReadRows(const std::string& query, Date from, int base, CDbLink& link, const GraphCalendar& calendar);
  void CountDays(Date from, Date to);
  void ColorSeries();
  void Tell(const char* routine, const std::function<void()>& work);
  CDbLink& LinkOf(const std::shared_ptr<FinYear>& year) const;

  bool HasLegend() const { return Graph.IsPie() || compareWith_ >= 1; }
  int DrawDays();
  int DrawPeriods(GraphUnit unit);
  void FillTable(GraphUnit unit, int divisor);
  void FillTableRow(GraphUnit unit, int series, int divisor);
  std::string PeriodLabel(GraphUnit unit, int position) const;

  void ChooseStyle(int style);
  void ChoosePeriod(int period);
  void ChooseFigures(int running);
  void ChooseComparison(int comparison);
  void ShowChoices();
  void Zoom();
  void Print();

  CDataSet rsGraph_;
  GraphFigures figures_;
  GraphCalendar labels_;  // of the first reading
  std::int16_t dayCount_ = 0;
  int style_ = 0;
  int compareWith_ = kCompareNone;
  bool nextLoaded_ = false;
  bool prevLoaded_ = false;
};

}  // namespace quillon
