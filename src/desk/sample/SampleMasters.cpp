#include "desk/sample/SampleMasters.h"

#include <algorithm>

#include "desk/firebird/FirebirdLink.h"
#include "desk/sample/SampleRandom.h"
#include "host/values/Text.h"

namespace quillon {

namespace {

constexpr const char* kFirstNames[] = {
    "Shree Ganesh", "Laxmi",     "Mahalaxmi", "Sai Krupa", "Om Shanti", "Bharat", "Jai Hind",  "Navjeevan",
    "Royal",        "Vishal",    "Ambika",    "Balaji",    "Chetan",    "Durga",  "Gayatri",   "Kalpataru",
    "Mangal",       "Padmavati", "Rajdeep",   "Swastik",   "Tirupati",  "Umiya",  "Venkatesh", "Yashodhan"};
constexpr const char* kLastNames[] = {"Traders", "Textiles",    "Agencies",    "Enterprises",
                                      "Stores",  "& Sons",      "Cloth House", "Saree Centre",
                                      "Mills",   "Corporation", "Silk Mills",  "Garments"};
constexpr const char* kStations[] = {"Pune",   "Mumbai",    "Nashik", "Nagpur", "Kolhapur",
                                     "Surat",  "Ahmedabad", "Indore", "Hubli",  "Solapur",
                                     "Sangli", "Satara",    "Kandla", "Jalgaon"};
constexpr const char* kStreets[] = {"Laxmi Road",   "M. G. Road",   "Station Road", "Market Yard",
                                    "Budhwar Peth", "Gandhi Chowk", "Ring Road",    "Tilak Path",
                                    "Main Bazar",   "Shivaji Nagar"};
constexpr const char* kDevanagariNames[] = {"श्री गणेश ट्रेडर्स",   "महालक्ष्मी वस्त्र भांडार", "जय भवानी स्टोअर्स",
                                            "सरस्वती साडी सेंटर", "विठ्ठल कापड दुकान",     "अंबिका एजन्सीज"};
constexpr const char* kDevanagariStations[] = {"पुणे", "नाशिक", "सातारा"};
constexpr const char* kTransporters[] = {"Sahyadri Roadlines", "Deccan Carriers",   "Konkan Transport",
                                         "Bharat Goods Lines", "Narmada Freight",   "Western Ghat Cargo",
                                         "Shivneri Logistics", "Godavari Transport"};
constexpr const char* kAgents[] = {"S. R. Kulkarni", "M. D. Shah",  "Anil Deshpande",
                                   "Prakash Jain",   "V. K. Patil", "Ramesh Agarwal"};

constexpr int kDebtors = 140;
constexpr int kCreditors = 60;
constexpr int kTransportGroup = 26;

SampleAccount Account(int code, const char* head, SampleGroup group, std::int64_t opening = 0) {
  SampleAccount account;
  account.Code = code;
  account.Head = head;
  account.Group = group;
  account.Opening = Amount::OfInteger(opening);
  return account;
}

/// Capitals, letters and digits only: what the look-ups of heads match.
std::string Pressed(const std::string& head) {
  std::string pressed;
  for (const char c : text::Upper(head)) {
    const bool isAsciiSign = c > 0 && !(c >= 'A' && c <= 'Z') && !(c >= '0' && c <= '9');
    if (!isAsciiSign) pressed += c;
  }
  return pressed;
}

bool IsParty(const SampleAccount& account) {
  return account.Group == SampleGroup::kDebtors || account.Group == SampleGroup::kCreditors;
}

Variant OrNull(int code) { return code == 0 ? Variant::Null() : Variant(code); }

void WriteAccount(FirebirdLink& year, const SampleAccount& account, Date start) {
  const std::string number = std::to_string(account.Code);
  const bool isParty = IsParty(account);
  const auto ofParty = [&](std::string text) { return isParty ? Variant(std::move(text)) : Variant::Null(); };
  const Variant none = Variant::Null();
  const Variant values[] = {
      account.Code,
      account.Head,
      account.Station.empty() ? none : Variant(account.Station),
      account.Address.empty() ? none : Variant(account.Address),
      ofParty("Near Post Office"),
      ofParty(std::to_string(400001 + account.Code)),
      ofParty("Maharashtra"),
      account.Alias.empty() ? none : Variant(account.Alias),
      ofParty("Shri " + account.Head.substr(0, account.Head.find(' '))),
      static_cast<int>(account.Group),
      account.Group == SampleGroup::kTransporters ? Variant(kTransportGroup) : Variant(1),
      ofParty("020-2445" + number),
      ofParty("98220" + std::string(5 - std::min<std::size_t>(number.size(), 5), '0') + number),
      ofParty("0000 0000 " + number),
      ofParty("Sahyadri Bank"),
      ofParty("Main Branch"),
      ofParty(account.Station),
      ofParty("SAHY0" + std::string(6 - std::min<std::size_t>(number.size(), 6), '0') + number),
      ofParty("50100" + number),
      account.IsDeactivated ? Variant(start.AddDays(-30)) : none,
      OrNull(account.Transporter),
      OrNull(account.Agent)};
  year.ExecuteWith(
      "insert into FAMaster "
      "(mcd,mhd,mst,mhda1,mhda2,mPin,mState,malias1,mName,mbshno,mgrpno,mPhoneOff,mCellNo,"
      "mAadharNo,mBankName,mBankBranch,mBankStn,mIFSCCode,mBankAcNo,mDeactiveDate,mTransportCode,mAgentCode) "
      "values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)",
      values);
  const Variant head[] = {account.Code, 0, account.Head, Pressed(account.Head)};
  year.ExecuteWith("insert into FAHeads (Code,SubCode,Head,PressHead) values (?,?,?,?)", head);
  if (account.Alias.empty()) return;
  const Variant alias[] = {account.Code, 1, account.Alias, Pressed(account.Alias)};
  year.ExecuteWith("insert into FAHeads (Code,SubCode,Head,PressHead) values (?,?,?,?)", alias);
}

void WriteGroups(FirebirdLink& year) {
  using Group = SampleGroup;
  const struct {
    Group No;
    const char* Name;
    const char* Type;
  } groups[] = {{Group::kCapital, "Capital Account", "Liabilities"},
                {Group::kFixedAssets, "Fixed Assets", "Assets"},
                {Group::kCash, "Cash in Hand", "Assets"},
                {Group::kBanks, "Bank Accounts", "Assets"},
                {Group::kDuties, "Duties and Taxes", "Liabilities"},
                {Group::kSuspense, "Suspense", "Liabilities"},
                {Group::kDebtors, "Sundry Debtors", "Assets"},
                {Group::kCreditors, "Sundry Creditors", "Liabilities"},
                {Group::kTransporters, "Transporters", "Liabilities"},
                {Group::kAgents, "Agents", "Liabilities"},
                {Group::kSales, "Sales", "Income"},
                {Group::kPurchases, "Purchases", "Expenses"},
                {Group::kExpenses, "Indirect Expenses", "Expenses"},
                {Group::kIncomes, "Other Incomes", "Income"}};
  for (const auto& group : groups) {
    const Variant values[] = {static_cast<int>(group.No), group.Name, group.Type};
    year.ExecuteWith("insert into CtgMaster (CtgNo,CtgName,CtgType) values (?,?,?)", values);
  }
}

void WriteArticles(FirebirdLink& year) {
  const char* const articles[] = {"Cotton Shirting", "Poplin", "Silk Saree", "Dhoti", "Terry Towel"};
  int code = 0;
  for (const char* article : articles) {
    ++code;
    const Variant head[] = {article, code, 0, Pressed(article)};
    year.ExecuteWith("insert into StkHeads (head,code,SubCode,PressHead) values (?,?,?,?)", head);
    const Variant master[] = {code, std::to_string(32 + 4 * code) + " in"};
    year.ExecuteWith("insert into StkMaster (qmcd,qsize) values (?,?)", master);
  }
  const char* const classes[] = {"Exempted", "Taxable 5%", "Taxable 12%", "Taxable 18%"};
  for (int no = 0; no < 4; ++no) {
    const Variant values[] = {classes[no], no + 1, Pressed(classes[no])};
    year.ExecuteWith("insert into VATClasses (VATClassName,VATClassNo,PressHead) values (?,?,?)", values);
  }
}

void WriteDataForm(FirebirdLink& year, const char* name, const char* title, const char* book,
                   const char* side) {
  const Variant form[] = {name, title, book};
  year.ExecuteWith("insert into EntryForms (FormName,FormTitle,BookCode) values (?,?,?)", form);
  const struct {
    const char* Name;
    const char* Title;
    int Width;
  } columns[] = {
      {"DATE", "Date", 10}, {"PARTY", "Party", 25}, {"NAR1", "Narration", 20}, {"AMOUNT", "Amount", 10}};
  int position = 0;
  for (const auto& column : columns) {
    const bool isAmount = ++position == 4;
    const Variant values[] = {
        name,     column.Name,  column.Title,     isAmount ? -1 : 0, isAmount ? side : "",
        position, column.Width, isAmount ? 2 : 0, isAmount ? -1 : 0};
    year.ExecuteWith(
        "insert into EntryFormDetails (FormName,ColName,ColTitle,ColNumeric,ColDrCr,ColPosition,ColWidthChar,"
        "ColDecimals,ColTotalRqr) values (?,?,?,?,?,?,?,?,?)",
        values);
  }
}

void WriteRates(FirebirdLink& year) {
  const std::pair<int, const char*> rates[] = {{SampleCode::kMainBank, "8.25"},
                                               {SampleCode::kCreditBank, "11.5"},
                                               {SampleCode::kThirdBank, "6.75"},
                                               {1001, "18"},
                                               {1002, "18"},
                                               {2001, "15"}};
  for (const auto& [code, rate] : rates) {
    const Variant values[] = {code, Amount::OfText(rate)};
    year.ExecuteWith("insert into RatesPA (mcd,Rate1) values (?,?)", values);
  }
  for (const int code : {1001, 1002, 2001}) {
    const Variant values[] = {code};
    year.ExecuteWith("insert into ParamOBal (dcd) values (?)", values);
  }
}

}  // namespace

SampleMasters::SampleMasters(SampleRandom& random) {
  AddFirmAccounts();
  AddHelpers(random);
  AddParties(random, SampleGroup::kDebtors, 1001, kDebtors);
  AddParties(random, SampleGroup::kCreditors, 2001, kCreditors);
  AddDoubles();
  BalanceOpenings();
  for (const SampleAccount& account : accounts_) {
    if (account.IsDeactivated) continue;
    if (account.Group == SampleGroup::kDebtors) debtors_.push_back(&account);
    if (account.Group == SampleGroup::kCreditors) creditors_.push_back(&account);
  }
}

void SampleMasters::AddFirmAccounts() {
  using Group = SampleGroup;
  accounts_ = {Account(SampleCode::kCash, "Cash", Group::kCash, 84250),
               Account(SampleCode::kBalanceContra, "Old Balances Adjustment", Group::kSuspense),
               Account(SampleCode::kCapital, "Capital Account", Group::kCapital),
               Account(31, "Furniture and Fixtures", Group::kFixedAssets, 265000),
               Account(32, "Delivery Van", Group::kFixedAssets, 540000),
               Account(SampleCode::kMainBank, "Sahyadri Bank Current A/c", Group::kBanks, 1248500),
               Account(SampleCode::kCreditBank, "Deccan Commercial Bank Cash Credit", Group::kBanks, -875000),
               Account(SampleCode::kThirdBank, "Godavari Co-op. Bank Current A/c", Group::kBanks, 312750),
               Account(SampleCode::kSales, "Sales A/c", Group::kSales),
               Account(SampleCode::kSalesTax, "Output Tax", Group::kDuties, -42310),
               Account(SampleCode::kPurchases, "Purchase A/c", Group::kPurchases),
               Account(SampleCode::kPurchaseTax, "Input Tax", Group::kDuties, 18940),
               Account(SampleCode::kBankCharges, "Bank Charges", Group::kExpenses),
               Account(SampleCode::kInterestPaid, "Interest Paid", Group::kExpenses),
               Account(SampleCode::kRent, "Shop Rent", Group::kExpenses),
               Account(SampleCode::kSalaries, "Salaries", Group::kExpenses),
               Account(SampleCode::kTelephone, "Telephone Expenses", Group::kExpenses),
               Account(SampleCode::kDiscount, "Discount Allowed", Group::kExpenses)};
  for (SampleAccount& account : accounts_) {
    if (account.Group == Group::kBanks) account.Station = "Pune";
  }
}

void SampleMasters::AddHelpers(SampleRandom& random) {
  int code = 3001;
  for (const char* head : kTransporters) {
    SampleAccount account = Account(code++, head, SampleGroup::kTransporters);
    account.Station = random.Pick(kStations);
    accounts_.push_back(std::move(account));
  }
  code = 3101;
  for (const char* head : kAgents) {
    SampleAccount account = Account(code++, head, SampleGroup::kAgents);
    account.Station = random.Pick(kStations);
    accounts_.push_back(std::move(account));
  }
}

void SampleMasters::AddParties(SampleRandom& random, SampleGroup group, int firstCode, int count) {
  const bool isDebtor = group == SampleGroup::kDebtors;
  // Each combination of names comes once: a step that shares no factor with their number walks through all of
  // them.
  constexpr int kNames = static_cast<int>(std::size(kFirstNames) * std::size(kLastNames));
  const int offset = isDebtor ? 0 : kDebtors;
  for (int i = 0; i < count; ++i) {
    const auto name = static_cast<std::size_t>((offset + i) * 133 % kNames);
    const std::string head = std::string(kFirstNames[name % std::size(kFirstNames)]) + " " +
                             kLastNames[name / std::size(kFirstNames)];
    SampleAccount account = Account(firstCode + i, head.c_str(), group);
    account.Station = random.Pick(kStations);
    account.Address = std::to_string(random.Between(1, 480)) + ", " + random.Pick(kStreets);
    if (isDebtor) account.Transporter = 3001 + random.Below(static_cast<int>(std::size(kTransporters)));
    if (random.InThousand(600)) account.Agent = 3101 + random.Below(static_cast<int>(std::size(kAgents)));
    if (random.InThousand(100)) account.Alias = head.substr(0, head.find(' ')) + "-" + std::to_string(i);
    if (random.InThousand(800)) account.Opening = isDebtor ? random.Money() : -random.Money();
    account.IsDeactivated = i == count - 1;
    accounts_.push_back(std::move(account));
  }
  const std::size_t first = accounts_.size() - static_cast<std::size_t>(count) + 3;
  for (std::size_t i = 0; i < (isDebtor ? std::size(kDevanagariNames) : 2); ++i) {
    SampleAccount& account = accounts_[first + i];
    account.Head = kDevanagariNames[i];
    account.Station = kDevanagariStations[i % std::size(kDevanagariStations)];
    account.Address = "१२३, लक्ष्मी रोड";
    account.Alias.clear();
  }
}

/// The same party entered twice: by head and station, and by an alias under another head.
void SampleMasters::AddDoubles() {
  const auto find = [&](int code) {
    return std::find_if(accounts_.begin(), accounts_.end(),
                        [&](const SampleAccount& a) { return a.Code == code; });
  };
  int code = 1501;
  for (const int original : {1010, 1011, 2010}) {
    SampleAccount twice = *find(original);
    twice.Code = code++;
    twice.Alias.clear();
    twice.Opening = Amount::OfInteger(original == 2010 ? -4200 : 3150);
    accounts_.push_back(std::move(twice));
  }
  for (const int original : {1020, 2020}) {
    find(original)->Alias = "OLD-" + std::to_string(original);
    SampleAccount twice = *find(original);
    twice.Code = code++;
    twice.Head += " (New)";
    twice.Opening = Amount();
    accounts_.push_back(std::move(twice));
  }
}

void SampleMasters::BalanceOpenings() {
  Amount sum;
  for (const SampleAccount& account : accounts_) sum += account.Opening;
  for (SampleAccount& account : accounts_) {
    if (account.Code == SampleCode::kCapital) account.Opening -= sum;
  }
}

void SampleMasters::Write(FirebirdLink& year, Date start) const {
  for (const SampleAccount& account : accounts_) WriteAccount(year, account, start);
  WriteGroups(year);
  WriteArticles(year);
  WriteRates(year);
  WriteDataForm(year, "SL1", "Sale Bills", "JS", "D");
  WriteDataForm(year, "PR1", "Purchase Bills", "JP", "C");
  WriteDataForm(year, "JD1", "Journal", "J", "D");
  WriteDataForm(year, "RC1", "Cash Received", "C", "C");
  WriteDataForm(year, "PC1", "Cash Paid", "C", "D");
}

}  // namespace quillon
