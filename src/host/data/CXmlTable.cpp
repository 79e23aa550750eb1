#include "host/data/CXmlTable.h"

#include <filesystem>
#include <pugixml.hpp>
#include <vector>

#include "host/values/Text.h"

namespace quillon {

struct CXmlTable::Document {
  pugi::xml_document xml;
  std::vector<pugi::xml_node> rows;
};

CXmlTable::CXmlTable() : document_(std::make_unique<Document>()) {}

CXmlTable::~CXmlTable() = default;

bool CXmlTable::Load(const std::string& file) {
  document_ = std::make_unique<Document>();
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return false;
  if (document_->xml.load_file(file.c_str(), pugi::parse_default | pugi::parse_ws_pcdata_single)) return true;
  document_->xml.reset();  // the parser leaves what stands before the fault
  return false;
}

void CXmlTable::SelectTable(const std::string& element) {
  const pugi::xml_node table = document_->xml.document_element().child(element.c_str());
  const auto rows = table.children("Data");
  document_->rows.assign(rows.begin(), rows.end());
}

std::size_t CXmlTable::RowCount() const { return document_->rows.size(); }

std::string CXmlTable::Field(std::size_t row, const std::string& name) const {
  if (row >= document_->rows.size()) return {};
  std::string value;
  for (const pugi::xml_node piece : document_->rows[row].child(name.c_str())) {
    if (piece.type() == pugi::node_pcdata || piece.type() == pugi::node_cdata) value += piece.value();
  }
  return text::Repaired(value);
}

}  // namespace quillon
