#include "maintenance/TransportMerge.h"

#include "books/SqlText.h"
#include "host/data/CDbLink.h"

namespace quillon {

void MergeTransports(CDbLink& db, std::int64_t from, std::int64_t to) {
  const std::string old = books::SqlNumber(from);
  const std::string kept = books::SqlNumber(to);
  db.Execute("Update FADocs set  TransportCode=" + kept + " where TransportCode=" + old);
  db.Execute("Update DocMain set TransportCode=" + kept + " where TransportCode=" + old);
}

}  // namespace quillon
