#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// The same query asked so that the rows are sorted before the second table is joined to them. The engine
/// sorts whole rows, and a narration counts there with the greatest width that it may have, so a list of
/// entries with their narrations sorts ten times as much as it needs.
///
/// It is for queries of columns of a table and of a second one that is joined by one equality, whose
/// condition and order are of the first table alone; nothing for any other. Rows that are equal in the asked
/// order then stand in that of the first table's key, which `keyOf` answers for its name in capitals. Where
/// the query asks for all columns of the first table, only those named in `reads`, if any, are carried along.
std::optional<std::string> SortedBeforeJoin(
    const std::string& query, const std::vector<std::string>& reads,
    const std::function<std::vector<std::string>(const std::string&)>& keyOf);

}  // namespace quillon
