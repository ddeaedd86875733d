#pragma once

#include <string>

namespace VxTest {

// A valid orders document from the shared generator (python3), as UTF-8 text; fails the
// calling test when the generator cannot run.
std::string OrdersDocument(int orders, int seed, bool formatted);

} // namespace VxTest
