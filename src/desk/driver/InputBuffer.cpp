#include "desk/driver/InputBuffer.h"

#include <cerrno>
#include <unistd.h>

namespace quillon {

namespace {

constexpr std::size_t kPiece = 65536;

}  // namespace

InputBuffer::InputBuffer(int file, std::string ahead) : file_(file), text_(std::move(ahead)) {
  setg(text_.data(), text_.data(), text_.data() + text_.size());
}

InputBuffer::int_type InputBuffer::underflow() {
  text_.resize(kPiece);
  ssize_t size = 0;
  do {
    size = read(file_, text_.data(), kPiece);
  } while (size < 0 && errno == EINTR);
  text_.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  setg(text_.data(), text_.data(), text_.data() + text_.size());
  return text_.empty() ? traits_type::eof() : traits_type::to_int_type(text_.front());
}

}  // namespace quillon
