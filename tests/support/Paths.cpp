#include "support/Paths.h"

namespace ladrix::test {

std::string Fixture(const std::string& name) {
    return std::string(LADRIX_FIXTURES "/") + name;
}

std::string ProgramPath(const std::string& name) {
    return std::string(LADRIX_PROGRAMS "/") + name;
}

}  // namespace ladrix::test
