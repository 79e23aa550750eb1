#pragma once

#include <initializer_list>
#include <string>

#include "host/data/CDataSet.h"

namespace quillon {

/// A field of the record at hand as trimmed text; empty when the record is closed, past its end or has no
/// such field.
std::string FieldText(const CDataSet& record, const std::string& name);

/// The fields that are not empty, joined.
std::string JoinFields(const CDataSet& record, std::initializer_list<const char*> names,
                       const std::string& separator);

}  // namespace quillon
