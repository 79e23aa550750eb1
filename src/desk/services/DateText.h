#pragma once

#include <string>

#include "host/values/Date.h"

namespace quillon {

/// What a short date is completed from: the open financial year, both days belonging to it, and the day it
/// is.
struct DateFrame {
  Date start;
  Date end;
  Date today;
};

/// Reads a day, a day and month, or a day, month and year of two or four digits (00 to 49 are 20xx),
/// separated by
/// "/", "-", "." or a blank, or written together (0504, 050424, 05042024); the month as a number or by its
/// English name. What is missing comes from the reference when this is a whole date; otherwise the year that
/// puts day and month into the open one, and for a day alone the month of today, or the year's first when
/// today lies outside. Empty when it is no date.
Date ReadDateText(const std::string& text, const std::string& reference, const DateFrame& frame);

/// The same as "dd-MMM-yyyy".
std::string ParseDateText(const std::string& text, const std::string& reference, const DateFrame& frame);

/// Whether a date field may be left with this text: it is empty, or a date that ParseDateText completes.
bool ValidDate(const std::string& text, const DateFrame& frame);

}  // namespace quillon
