#include "desk/firm/OpeningNote.h"

#include <fstream>

namespace quillon {

namespace fs = std::filesystem;

OpeningNote::OpeningNote(const fs::path& folder, const std::string& database) : file_(folder / "opening") {
  std::ofstream(file_) << database;
}

OpeningNote::~OpeningNote() {
  std::error_code ignored;
  fs::remove(file_, ignored);
}

std::string OpeningNote::Take(const fs::path& folder) {
  std::ifstream in(folder / "opening");
  std::string database(std::istreambuf_iterator<char>(in), {});
  std::error_code ignored;
  fs::remove(folder / "opening", ignored);
  return database;
}

}  // namespace quillon
