#include "maintenance/reorder_plan.h"

namespace vellumark {
namespace {

int RoundedQuotient(int number, int divisor) {
  const int quotient = number / divisor;
  const int rest = 2 * (number % divisor);
  const bool up = rest > divisor || (rest == divisor && quotient % 2 != 0);
  return up ? quotient + 1 : quotient;
}

}  // namespace

bool SubfolderPlan::NeedsNewFolder(const std::string& level) const {
  if (folders_ == 0) return true;
  if (settings_.KeepLevelsApart && level != last_level_) return true;
  if (next_slot_ > settings_.MaxSlot) return true;
  return settings_.MaxPerFolder > 0 && next_slot_ >= settings_.MaxPerFolder;
}

void SubfolderPlan::BeginFolder() {
  ++folders_;
  next_slot_ = 0;
}

int SubfolderPlan::TakeSlot(const std::string& level) {
  last_level_ = level;
  return next_slot_++;
}

int CopyingPercent(int position, int count, bool deletes_old) {
  const int percent = RoundedQuotient((position + 1) * 100, count);
  return deletes_old ? RoundedQuotient(percent, 2) : percent;
}

int DeletingPercent(int number, int count) {
  const int percent = number < count ? RoundedQuotient(number * 100, count) : 100;
  return RoundedQuotient(percent + 100, 2);
}

}  // namespace vellumark
