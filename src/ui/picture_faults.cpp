#include "ui/picture_faults.h"

#include "foundation/messages.h"
#include "foundation/own_messages.h"

namespace vellumark {

std::string WordsFor(PictureFault fault) {
  switch (fault) {
    case PictureFault::kTooLarge:
      return LoadMessage(kPictureFaultTooLarge);
    case PictureFault::kTooLargeForSmall:
      return LoadMessage(kPictureFaultLargeForSmall);
    case PictureFault::kNotCredible:
      return LoadMessage(kPictureFaultNotCredible);
    case PictureFault::kDamaged:
      return LoadMessage(kPictureFaultDamaged);
    default:
      return LoadMessage(kPictureFaultNone);
  }
}

}  // namespace vellumark
