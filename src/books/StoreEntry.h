#pragma once

#include <cstdint>
#include <string>

namespace quillon {

class CDbLink;

namespace books {

/// Carries out a statement that changes an entry of a voucher and answers the number of rows changed. Where
/// the database refuses it the DbError says which entry was not stored.
std::int64_t StoreEntry(CDbLink& db, std::int64_t voucher, const std::string& statement);

}  // namespace books
}  // namespace quillon
