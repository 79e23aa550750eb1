#pragma once

#include <memory>
#include <string>

namespace quillon {

/// Reads a flat XML file: under the root stand tables, each with `Data` children that are its rows.
class CXmlTable {
 public:
  CXmlTable();
  ~CXmlTable();

  /// A file that cannot be read, or is no XML, counts as one without tables; the result tells.
  bool Load(const std::string& file);

  /// An unknown name selects a table without rows.
  void SelectTable(const std::string& element);
  std::size_t RowCount() const;

  /// Empty when the row or the child element is absent.
  std::string Field(std::size_t row, const std::string& name) const;

 private:
  struct Document;
  std::unique_ptr<Document> document_;
};

}  // namespace quillon
