#pragma once

#include <filesystem>

namespace quillon::bench {

inline constexpr int kBank = 101;
inline constexpr int kYear = 2024;

/// Of each entry one is the other side, in turn: "Party No. 0" at "Indore" and so on.
inline constexpr int kFirstParty = 1001;
inline constexpr int kParties = 200;

/// Makes a firm whose bank has this many entries in its one year, a tenth of them not cleared at its end and
/// one in fifty a returned cheque. Each entry is a voucher of two lines with a narration.
void MakeBenchFirm(const std::filesystem::path& folder, int entries);

}  // namespace quillon::bench
