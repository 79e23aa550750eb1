#include "desk/print/QueuedJob.h"

#include <array>
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

constexpr int kPatience = 10;  // seconds

Connection Connect() {
  // The library keeps the first server that it was told of.
  cupsSetServer(nullptr);
  Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                     kPatience * 1000, nullptr));
  const auto givesUp = [](http_t*, void*) { return 0; };
  if (connection) httpSetTimeout(connection.get(), kPatience, givesUp, nullptr);
  return connection;
}

/// The number that the server answers for an attribute of a job or a printer, which `what` names as in
/// "/jobs/12"; 0 when it does not answer.
int Ask(http_t* connection, ipp_op_t operation, const char* kind, const std::string& what,
        const char* attribute) {
  std::array<char, HTTP_MAX_URI> address{};
  httpAssembleURI(HTTP_URI_CODING_ALL, address.data(), static_cast<int>(address.size()), "ipp", nullptr,
                  "localhost", 0, what.c_str());
  ipp_t* const request = ippNewRequest(operation);
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, kind, nullptr, address.data());
  ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, attribute);
  const Answer answer(cupsDoRequest(connection, request, "/"));
  ipp_attribute_t* const found = answer ? ippFindAttribute(answer.get(), attribute, IPP_TAG_ENUM) : nullptr;
  return found != nullptr ? ippGetInteger(found, 0) : 0;
}

int JobState(http_t* connection, int job) {
  return Ask(connection, IPP_OP_GET_JOB_ATTRIBUTES, "job-uri", "/jobs/" + std::to_string(job), "job-state");
}

bool IsStopped(http_t* connection, const std::string& queue) {
  const int state =
      Ask(connection, IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri", "/printers/" + queue, "printer-state");
  return state == IPP_PSTATE_STOPPED;
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
  const int state = JobState(connection.get(), number_);
  if (state == IPP_JSTATE_HELD || state == IPP_JSTATE_STOPPED) {
    heldUp = "The queue of the printer " + queue_ + " holds the pages back.";
  } else if ((state == IPP_JSTATE_PENDING || state == IPP_JSTATE_PROCESSING) &&
             IsStopped(connection.get(), queue_)) {
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
