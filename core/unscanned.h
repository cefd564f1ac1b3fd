#pragma once

namespace tarvelon {

class Failure;
struct Platform;

/// Tells the user of a run without a main window that its scan cannot be made, and why.
void tellUnscanned(Platform& platform, const Failure& failure);

} // namespace tarvelon
