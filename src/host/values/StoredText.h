#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The form in which settings are stored: entries that each end with ";", values inside an entry joined by
/// ",". In values every character that separates, and the bar, is written as a backslash and a letter. So no
/// stored text holds a bar, and two of them can be joined by "<|||>"; a text that was cut off misses its last
/// ";".
namespace quillon::stored {

inline constexpr char kEndOfEntry = ';';
inline constexpr char kEndOfValue = ',';
inline constexpr char kEndOfName = '=';

std::string Escape(std::string_view value);

/// Throws HostError for an escape that Escape never writes, and for a separator that it would have escaped.
std::string Unescape(std::string_view text);

/// The entries of a stored text, still escaped; throws HostError when the last one has no end.
std::vector<std::string> Entries(std::string_view text);

}  // namespace quillon::stored
