#include "desk/print/ReportFirm.h"

#include <initializer_list>

#include "desk/print/RecordFields.h"
#include "host/services/IApp.h"
#include "host/values/Text.h"

namespace quillon {

ReportFirm ReportFirm::Current() {
  ReportFirm firm;
  if (gApp == nullptr) return firm;
  const CDataSet& record = gApp->MainWindow().FirmRecord();
  firm.Name = FieldText(record, "FirmName");
  firm.AddressLines = {JoinFields(record, {"Address1", "Address2"}, ", "), FieldText(record, "Address3"),
                       JoinFields(record, {"Station", "Pin"}, " - ")};
  std::erase(firm.AddressLines, "");
  return firm;
}

}  // namespace quillon
