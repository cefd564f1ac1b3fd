#include "hash/do_events.h"

#include "platform/messages.h"

namespace tarvelon {

void clsDoEvents::GetInputState() {
    if (messages_.queueStatus(queueUsed_) != 0) {
        messages_.pump();
    }
}

} // namespace tarvelon
