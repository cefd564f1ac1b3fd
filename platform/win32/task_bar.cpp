#include "platform/win32/task_bar.h"

namespace tarvelon {

void TaskBar::showProgress(HWND window, int value, int max) {
    if (!list_) {
        list_ = makeComponent<ITaskbarList3>(CLSID_TaskbarList);
        if (*list_ && FAILED((*list_)->HrInit())) {
            list_->reset();
        }
    }
    if (!*list_) {
        return;
    }
    if (value <= 0 || value >= max) {
        (*list_)->SetProgressState(window, TBPF_NOPROGRESS);
    } else {
        (*list_)->SetProgressValue(window, static_cast<ULONGLONG>(value), static_cast<ULONGLONG>(max));
    }
}

} // namespace tarvelon
