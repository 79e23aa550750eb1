#pragma once

#include <nlohmann/json.hpp>

#include "host/controls/Control.h"
#include "host/values/Variant.h"

namespace quillon {

using Json = nlohmann::ordered_json;

/// A value as the driver writes it: amounts and dates as texts ("9.5", "30-Apr-2024"), empty and null as
/// null. Objects are the caller's affair and give null.
Json ToJson(const Variant& value);

/// A value as a database gives it: amounts with four decimals, dates as "yyyy-mm-dd".
Json ToDatabaseJson(const Variant& value);

/// A value from a script; a list becomes an array. Throws HostError for an object.
Variant FromJson(const Json& value);

/// The JSON of a line; a discarded value where it is none, or nested deeper than 100.
Json ParseLine(const std::string& line);

/// One line, with whatever is no UTF-8 replaced.
std::string Line(const Json& value);

}  // namespace quillon
