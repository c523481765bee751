#include "forms/MousePointer.h"

namespace tarvik {
namespace {

int hourglasses = 0;  // on the one user-interface thread

HCURSOR WaitPointer() {
  return LoadCursorW(nullptr, MAKEINTRESOURCEW(32514));
}

}  // namespace

Hourglass::Hourglass() : former_(hourglasses == 0 ? SetCursor(WaitPointer()) : nullptr) {
  ++hourglasses;
}

Hourglass::~Hourglass() {
  if (--hourglasses == 0) SetCursor(former_);
}

bool Hourglass::Maintain() {
  if (hourglasses > 0) SetCursor(WaitPointer());
  return hourglasses > 0;
}

}  // namespace tarvik
