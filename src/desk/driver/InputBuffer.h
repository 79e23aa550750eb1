#pragma once

#include <streambuf>
#include <string>

namespace quillon {

/// Reads a file descriptor, and can tell what it has read ahead, so that another process can go on from
/// there.
class InputBuffer : public std::streambuf {
 public:
  /// `ahead` comes before what the descriptor gives. The descriptor stays open.
  InputBuffer(int file, std::string ahead);

  int File() const { return file_; }

  /// What was read and not yet taken.
  std::string Ahead() const { return {gptr(), egptr()}; }

 protected:
  int_type underflow() override;

 private:
  int file_;
  std::string text_;
};

}  // namespace quillon
