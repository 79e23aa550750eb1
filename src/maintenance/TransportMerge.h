#pragma once

#include <cstdint>

namespace quillon {

class CDbLink;

/// All documents of one transporter become another's.
void MergeTransports(CDbLink& db, std::int64_t from, std::int64_t to);

}  // namespace quillon
