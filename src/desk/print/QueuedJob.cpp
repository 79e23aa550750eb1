#include "desk/print/QueuedJob.h"

#include <charconv>
#include <cups/cups.h>
#include <memory>

namespace quillon {

namespace {

struct Closes {
  void operator()(http_t* connection) const { httpClose(connection); }
  void operator()(ipp_t* answer) const { ippDelete(answer); }
};
using Connection = std::unique_ptr<http_t, Closes>;
using Answer = std::unique_ptr<ipp_t, Closes>;

constexpr int kPatience = 10'000;  // milliseconds

Connection Connect() {
  // The library keeps the first server that it was told of.
  cupsSetServer(nullptr);
  return Connection(
      httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, kPatience, nullptr));
}

/// The number that the queue answers for an attribute; 0 when it does not answer. `job` 0 asks for the queue.
int Ask(http_t* connection, const std::string& queue, int job, const char* attribute) {
  ipp_t* const request = ippNewRequest(job != 0 ? IPP_OP_GET_JOB_ATTRIBUTES : IPP_OP_GET_PRINTER_ATTRIBUTES);
  const std::string address = "ipp://localhost/printers/" + queue;
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, address.c_str());
  if (job != 0) ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", job);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, attribute);
  const Answer answer(cupsDoRequest(connection, request, "/"));
  ipp_attribute_t* const found = answer ? ippFindAttribute(answer.get(), attribute, IPP_TAG_ENUM) : nullptr;
  return found != nullptr ? ippGetInteger(found, 0) : 0;
}

}  // namespace

QueuedJob::QueuedJob(const std::string& name) {
  const std::size_t dash = name.rfind('-');
  queue_ = name.substr(0, dash);
  if (dash == std::string::npos) return;
  std::from_chars(name.data() + dash + 1, name.data() + name.size(), number_);
}

IPrinter::JobFate QueuedJob::Fate(std::string& why) const {
  using enum IPrinter::JobFate;
  const Connection connection = number_ > 0 ? Connect() : nullptr;
  if (!connection) {
    why = "The queue of the printer " + queue_ + " does not answer.";
    return kInDoubt;
  }
  switch (Ask(connection.get(), queue_, number_, "job-state")) {
    case IPP_JSTATE_COMPLETED:
      return kPrinted;
    case IPP_JSTATE_PENDING:
    case IPP_JSTATE_PROCESSING:
      if (Ask(connection.get(), queue_, 0, "printer-state") != IPP_PSTATE_STOPPED) return kUnderWay;
      why = "The printer " + queue_ + " is stopped.";
      return kInDoubt;
    case IPP_JSTATE_HELD:
    case IPP_JSTATE_STOPPED:
      why = "The queue of the printer " + queue_ + " holds the pages back.";
      return kInDoubt;
    case IPP_JSTATE_CANCELED:
    case IPP_JSTATE_ABORTED:
      why = "The printer " + queue_ + " has given the pages up.";
      return kInDoubt;
    default:
      why = "The queue of the printer " + queue_ + " knows nothing of the pages any more.";
      return kInDoubt;
  }
}

void QueuedJob::TakeBack() const {
  if (number_ == 0) return;
  if (const Connection connection = Connect()) cupsCancelJob2(connection.get(), queue_.c_str(), number_, 0);
}

}  // namespace quillon
