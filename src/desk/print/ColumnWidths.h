#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "desk/print/ReportTable.h"

namespace quillon {

/// How wide a text is, in twips or in characters.
using ReportMeasure = std::function<double(std::string_view text, bool bold)>;

/// The least width of each column: figures, dates and other short texts are never wrapped, long texts at the
/// left may be, titles not within a word.
std::vector<double> LeastWidths(const ReportTable& table, const ReportMeasure& measure);

/// Shares `width` among the columns in proportion to their widths on the screen, none below its least width.
/// When even those do not fit all are cut alike.
std::vector<double> ShareWidth(const ReportTable& table, const std::vector<double>& least, double width);

}  // namespace quillon
