#include "mirolen/render/Screen.h"

namespace mirolen {

Screen& screen() {
  static Screen the_screen;
  return the_screen;
}

}  // namespace mirolen
