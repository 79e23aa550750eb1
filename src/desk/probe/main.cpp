#include <cstdlib>

#include "desk/firebird/FirebirdAttachment.h"
#include "host/values/Errors.h"

/// Attaches to a database and leaves it again. Whoever started it sees by its end that the engine answers.
int main(int count, char** words) {
  if (count != 2) return 2;
  const char* const user = std::getenv("ISC_USER");
  const char* const password = std::getenv("ISC_PASSWORD");
  try {
    quillon::FirebirdAttachment::Attach(
        {words[1], user != nullptr ? user : "", password != nullptr ? password : ""});
  } catch (const quillon::HostError&) {
    return 1;
  }
  return 0;
}
