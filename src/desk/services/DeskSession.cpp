#include "desk/services/DeskSession.h"

#include "host/values/Errors.h"

namespace quillon {

namespace {

std::unique_ptr<Firm> OpenFirm(const std::string& folder, SqlObserver* observer,
                               const std::string& takeOver) {
  FirmOptions options;
  options.TakeOver = takeOver;
  std::unique_ptr<Firm> firm = Firm::Open(folder, options);
  if (observer != nullptr) firm->SetObserver(observer);
  return firm;
}

std::shared_ptr<DeskYear> OpenYear(Firm& firm, int startYear) {
  const std::vector<int> years = firm.Years();
  if (years.empty()) throw HostError("The firm has no financial year");
  const int wanted = startYear != 0 ? startYear : years.back();
  auto year = std::make_shared<DeskYear>(firm);
  bool ok = false;
  year->OpenYear(wanted, ok);
  if (!ok)
    throw HostError("The firm has no financial year " + std::to_string(wanted) + "-" +
                    std::to_string(wanted + 1).substr(2));
  return year;
}

}  // namespace

DeskSession::DeskSession(const std::string& folder, const std::string& user, int startYear,
                         SqlObserver* observer, const std::string& takeOver)
    : firm_(OpenFirm(folder, observer, takeOver)),
      year_(OpenYear(*firm_, startYear)),
      user_(FindUser(*firm_->Common(), user)),
      parameters_(*firm_->Common()) {}

DeskSession::~DeskSession() {
  if (gSession == this) gSession = nullptr;
}

std::string DeskSession::UserToOpenWith() {
  return CommonDb().RowExists("select 1 from Users") ? user_.Name : "";
}

std::string DeskSession::Parameters::Parameter(int number) {
  return common.Lookup("FirmParameters", "ParameterText", "ParameterNo=" + std::to_string(number)).ToText();
}

IModule* DeskSession::Loaded::Item(const std::string& key) {
  const auto known = byKey.find(key);
  return known == byKey.end() ? nullptr : known->second;
}

}  // namespace quillon
