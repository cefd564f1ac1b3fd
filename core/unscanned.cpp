#include "core/unscanned.h"

#include "core/failure.h"
#include "platform/dialogs.h"
#include "platform/platform.h"

namespace tarvelon {

void tellUnscanned(Platform& platform, const Failure& failure) {
    platform.dialogs.message(
        {.text = std::string(failure.what()) + "\r\n\r\nThe Integrity Check was not made.",
         .icon = BoxIcon::Warning});
}

} // namespace tarvelon
