#include "offseason/career_steps.h"

namespace courtmere {

CareerSteps& NoCareerSteps() {
  static CareerSteps none;
  return none;
}

}  // namespace courtmere
