// Where a test finds what it does not make itself.
#pragma once

#include <string>

namespace ladrix::test {

// A file of tests/fixtures in the source tree; tests only read there.
std::string Fixture(const std::string& name);

// A built program, such as "ladrix", with the shipped files beside it.
std::string ProgramPath(const std::string& name);

}  // namespace ladrix::test
