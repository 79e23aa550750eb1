#include "books/Right.h"

namespace quillon {

Right UsersRight() { return {91, "firm.users", "Users and Rights"}; }

}  // namespace quillon
