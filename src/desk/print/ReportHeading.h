#pragma once

#include <string>

#include "desk/print/PagePlan.h"
#include "desk/print/ReportPages.h"
#include "desk/print/ReportSettings.h"

namespace quillon {

/// Sets the headings at the top of pages.
class ReportHeading {
 public:
  /// All must outlive the heading.
  ReportHeading(const ReportRequest& request, const ReportSettings& settings, const PagePlan& plan,
                ReportPages& pages);

  /// Sets the heading of page `number` of `total`, counted from 1, and tells where the page goes on below.
  double Place(ReportPage& page, std::size_t number, std::size_t total);

 private:
  void SetAccount(std::size_t number, std::size_t total);
  void SetAccountShort(std::size_t number, std::size_t total);
  void SetLetter(bool withHead);
  void SetAccountHead(bool withAddress);

  enum class Side { Left, Centre, Right };
  Font Face(double size, bool bold) const;
  void Put(const std::string& text, const Font& font, Side side, double lineSize = 0);
  void PutCentred(const std::string& text, const Font& font);
  void Rule();

  const ReportRequest& request_;
  const ReportSettings& settings_;
  const PagePlan& plan_;
  ReportPages& pages_;
  ReportPage* page_ = nullptr;
  double y_ = 0;
};

}  // namespace quillon
