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

int QueuedJob::State(std::string& heldUp) const {
  const Connection connection = number_ > 0 ? Connect() : nullptr;
  if (!connection) return 0;
  const int state = Ask(connection.get(), queue_, number_, "job-state");
  if (state == IPP_JSTATE_HELD || state == IPP_JSTATE_STOPPED) {
    heldUp = "The queue of the printer " + queue_ + " holds the pages back.";
  } else if ((state == IPP_JSTATE_PENDING || state == IPP_JSTATE_PROCESSING) &&
             Ask(connection.get(), queue_, 0, "printer-state") == IPP_PSTATE_STOPPED) {
    heldUp = "The printer " + queue_ + " is stopped.";
  }
  return state;
}

std::string QueuedJob::HeldUp() const {
  std::string why;
  State(why);
  return why;
}

IPrinter::JobFate QueuedJob::Fate(std::string& why) const {
  using enum IPrinter::JobFate;
  std::string heldUp;
  const int state = State(heldUp);
  if (state == IPP_JSTATE_COMPLETED) return kPrinted;
  if (heldUp.empty() && (state == IPP_JSTATE_PENDING || state == IPP_JSTATE_PROCESSING)) return kUnderWay;
  if (!heldUp.empty()) {
    why = heldUp;
  } else if (state == IPP_JSTATE_CANCELED || state == IPP_JSTATE_ABORTED) {
    why = "The printer " + queue_ + " has given the pages up.";
  } else {
    why = "The queue of the printer " + queue_ + " knows nothing of the pages.";
  }
  return kInDoubt;
}

void QueuedJob::TakeBack() const {
  if (number_ == 0) return;
  if (const Connection connection = Connect()) cupsCancelJob2(connection.get(), queue_.c_str(), number_, 0);
}

}  // namespace quillon
