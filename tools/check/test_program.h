#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace check {

struct Case {
    enum class Result { Passed, Failed, LeftOut };

    std::string name; ///< With its program's in front, such as "view/View.RowsFollowAndAreChosen".
    Result result;
    std::string told; ///< What a failed one has printed, or why it is left out.
};

struct TestProgram {
    std::string name; ///< As the report shows it.
    std::string file;
    std::string arguments;
    std::map<std::string, std::string> leftOut = {}; ///< Cases, and why.
};

/// Runs all cases of a program. One that crashes or hangs has failed, and the others are run without it. Each
/// is handed over as soon as it is known.
void runCases(const TestProgram& program, const std::function<void(const Case&)>& onCase);

} // namespace check
