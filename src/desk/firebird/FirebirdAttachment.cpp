#include "desk/firebird/FirebirdAttachment.h"

#include "desk/firebird/FirebirdEngine.h"
#include "desk/firebird/FirebirdStatus.h"

namespace quillon {

namespace {

constexpr int kConnectSeconds = 5;
constexpr int kPageSize = 8192;

struct Disposer {
  template <class T>
  void operator()(T* object) const {
    object->dispose();
  }
};

struct Releaser {
  template <class T>
  void operator()(T* object) const {
    object->release();
  }
};

template <class Open>
std::shared_ptr<FirebirdAttachment> Opened(const FirebirdAddress& address, bool create, Open open) {
  const std::string none;
  FirebirdStatus status(none);
  Firebird::IUtil* util = FirebirdEngine::Master().getUtilInterface();
  const std::unique_ptr<Firebird::IXpbBuilder, Disposer> dpb(
      util->getXpbBuilder(&status, Firebird::IXpbBuilder::DPB, nullptr, 0));
  dpb->insertTag(&status, isc_dpb_utf8_filename);
  dpb->insertString(&status, isc_dpb_lc_ctype, "UTF8");
  // All who open a firm's file share its tables, so the embedded engine sees one user whoever runs the desk.
  dpb->insertString(&status, isc_dpb_user_name, address.User.empty() ? "SYSDBA" : address.User.c_str());
  if (address.IsServer()) {
    dpb->insertString(&status, isc_dpb_password, address.Password.c_str());
    dpb->insertInt(&status, isc_dpb_connect_timeout, kConnectSeconds);
  }
  if (create) {
    dpb->insertString(&status, isc_dpb_set_db_charset, "UTF8");
    dpb->insertInt(&status, isc_dpb_page_size, kPageSize);
    dpb->insertInt(&status, isc_dpb_sql_dialect, SQL_DIALECT_V6);
  }
  const std::unique_ptr<Firebird::IProvider, Releaser> provider(FirebirdEngine::Master().getDispatcher());
  const unsigned length = dpb->getBufferLength(&status);
  return std::make_shared<FirebirdAttachment>(open(*provider, status, length, dpb->getBuffer(&status)));
}

}  // namespace

std::shared_ptr<FirebirdAttachment> FirebirdAttachment::Attach(const FirebirdAddress& address) {
  return Opened(address, false, [&](auto& provider, auto& status, unsigned length, const unsigned char* dpb) {
    return provider.attachDatabase(&status, address.Database.c_str(), length, dpb);
  });
}

std::shared_ptr<FirebirdAttachment> FirebirdAttachment::Create(const FirebirdAddress& address) {
  return Opened(address, true, [&](auto& provider, auto& status, unsigned length, const unsigned char* dpb) {
    return provider.createDatabase(&status, address.Database.c_str(), length, dpb);
  });
}

FirebirdAttachment::~FirebirdAttachment() {
  Firebird::CheckStatusWrapper status = SilentStatus();
  attachment_->detach(&status);
  if (status.hasData()) attachment_->release();
}

}  // namespace quillon
