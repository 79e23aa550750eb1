#include "desk/firebird/FirebirdAttachment.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <unistd.h>

#include "desk/firebird/EngineNames.h"
#include "desk/firebird/EngineWatch.h"
#include "desk/firebird/FirebirdEngine.h"
#include "desk/firebird/FirebirdStatus.h"
#include "host/values/Errors.h"

namespace quillon {

namespace fs = std::filesystem;

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

/// The engine takes the signals that end a process for itself: it would shut the books down under a program
/// that goes on running. While one of these lives they are lent out, and come back when it goes.
class OwnSignals {
 public:
  OwnSignals() {
    for (std::size_t i = 0; i < kCount; ++i) sigaction(kSignals[i], nullptr, &own_[i]);
  }
  OwnSignals(const OwnSignals&) = delete;
  OwnSignals& operator=(const OwnSignals&) = delete;
  ~OwnSignals() {
    for (std::size_t i = 0; i < kCount; ++i) sigaction(kSignals[i], &own_[i], nullptr);
  }

 private:
  static constexpr std::size_t kCount = 2;
  static constexpr int kSignals[kCount] = {SIGTERM, SIGINT};
  struct sigaction own_[kCount] = {};
};

/// Whether the engine waits for the disk with each page that it writes to this file.
bool IsForced(Firebird::IAttachment& attachment) {
  constexpr unsigned char kAsked[] = {isc_info_forced_writes, isc_info_end};
  unsigned char answer[16] = {};
  Firebird::CheckStatusWrapper status = SilentStatus();
  attachment.getInfo(&status, sizeof kAsked, kAsked, sizeof answer, answer);
  constexpr std::size_t kValue = 3;  // behind the item and the two bytes of its length
  return status.hasData() || answer[0] != isc_info_forced_writes || answer[kValue] != 0;
}

/// What the system still holds of the file.
void Flush(const std::string& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return;
  fsync(file);
  close(file);
}

template <class Open>
std::shared_ptr<FirebirdAttachment> Opened(const FirebirdAddress& address, bool create,
                                           std::optional<bool> force, Open open) {
  const std::string none;
  FirebirdStatus status(none);
  Firebird::IUtil* util = FirebirdEngine::Master().getUtilInterface();
  const std::unique_ptr<Firebird::IXpbBuilder, Disposer> dpb(
      util->getXpbBuilder(&status, Firebird::IXpbBuilder::DPB, nullptr, 0));
  dpb->insertTag(&status, isc_dpb_utf8_filename);
  dpb->insertString(&status, isc_dpb_lc_ctype, "UTF8");
  // All who open a firm's file share its tables, so the embedded engine sees one user whoever runs the desk.
  dpb->insertString(&status, isc_dpb_user_name, address.User.empty() ? "SYSDBA" : address.User.c_str());
  if (!address.IsServer()) {
    dpb->insertString(&status, isc_dpb_config, "Providers=Engine12");
  } else {
    dpb->insertString(&status, isc_dpb_password, address.Password.c_str());
    dpb->insertInt(&status, isc_dpb_connect_timeout, kConnectSeconds);
  }
  if (force) dpb->insertInt(&status, isc_dpb_force_write, *force ? 1 : 0);
  if (create) {
    dpb->insertString(&status, isc_dpb_set_db_charset, "UTF8");
    dpb->insertInt(&status, isc_dpb_page_size, kPageSize);
    dpb->insertInt(&status, isc_dpb_sql_dialect, SQL_DIALECT_V6);
  }
  const std::unique_ptr<Firebird::IProvider, Releaser> provider(FirebirdEngine::Master().getDispatcher());
  const unsigned length = dpb->getBufferLength(&status);
  FirebirdEngine::UseLocks({});
  const OwnSignals signals;
  const EngineWatch::Call call(address);
  return std::make_shared<FirebirdAttachment>(address,
                                              open(*provider, status, length, dpb->getBuffer(&status)));
}

}  // namespace

std::shared_ptr<FirebirdAttachment> FirebirdAttachment::Attach(const FirebirdAddress& address) {
  const auto attach = [&address](std::optional<bool> force) {
    return Opened(
        address, false, force, [&](auto& provider, auto& status, unsigned length, const unsigned char* dpb) {
          const std::string name = address.IsServer() ? address.Database : EngineNames::Of(address.Database);
          return provider.attachDatabase(&status, name.c_str(), length, dpb);
        });
  };
  if (address.IsServer()) return attach({});
  if (!address.WaitsForDisk) return attach(false);
  std::shared_ptr<FirebirdAttachment> attachment = attach({});
  if (IsForced(*attachment->Handle())) return attachment;
  attachment.reset();
  attachment = attach(true);
  Flush(address.Database);
  return attachment;
}

std::shared_ptr<FirebirdAttachment> FirebirdAttachment::Create(const FirebirdAddress& address) {
  if (!address.IsServer() && !EngineNames::IsPlain(address.Database)) {
    // Under a short name the engine opens what there is, and no more.
    const fs::path made = FirebirdEngine::Names() / (std::to_string(getpid()) + ".fdb");
    Create({made.string(), address.User, address.Password, address.WaitsForDisk}).reset();
    std::error_code failed;
    fs::copy_file(made, address.Database, failed);
    fs::remove(made);
    if (failed) throw HostError("The file " + address.Database + " cannot be made: " + failed.message());
    return Attach(address);
  }
  const std::optional<bool> force = address.WaitsForDisk ? std::optional<bool>() : false;
  return Opened(address, true, force,
                [&](auto& provider, auto& status, unsigned length, const unsigned char* dpb) {
                  return provider.createDatabase(&status, address.Database.c_str(), length, dpb);
                });
}

void FirebirdAttachment::Delete(const FirebirdAddress& address) noexcept {
  try {
    const std::shared_ptr<FirebirdAttachment> attachment = Attach(address);
    Firebird::CheckStatusWrapper status = SilentStatus();
    attachment->attachment_->dropDatabase(&status);
    if (!status.hasData()) attachment->attachment_ = nullptr;
  } catch (const std::exception&) {
    // What cannot be opened is no database yet.
  }
  std::error_code ignored;
  if (!address.IsServer()) fs::remove(address.Database, ignored);
}

void FirebirdAttachment::Cut() noexcept {
  if (!address_.IsServer()) return;
  Firebird::CheckStatusWrapper status = SilentStatus();
  attachment_->cancelOperation(&status, fb_cancel_abort);
}

FirebirdAttachment::~FirebirdAttachment() {
  if (attachment_ == nullptr) return;
  const EngineWatch::Call call(address_, attachment_);
  Firebird::CheckStatusWrapper status = SilentStatus();
  attachment_->detach(&status);
  if (status.hasData()) attachment_->release();
}

}  // namespace quillon
