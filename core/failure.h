#pragma once

#include <stdexcept>
#include <string>

namespace tarvelon {

/// A failure that travels to the caller: a text for the user, such as "Cannot read C:\...". Most failures do
/// not; they are results of calls.
class Failure : public std::runtime_error {
public:
    explicit Failure(const std::string& what)
        : std::runtime_error(what) {}
};

/// Runs one statement; should it fail, the next one runs.
template<class Statement>
void passOver(Statement&& statement) {
    try {
        statement();
    } catch (const Failure&) {
        // Passed over: the statements behind this one do not depend on it.
    }
}

} // namespace tarvelon
