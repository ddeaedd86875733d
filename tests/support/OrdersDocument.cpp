#include "OrdersDocument.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace VxTest {

std::string OrdersDocument(int orders, int seed, bool formatted)
{
    const std::string command = std::string("python3 ") + VX_SHARED_DIR + "/tools/gen_orders.py --orders " +
                                std::to_string(orders) + " --seed " + std::to_string(seed) +
                                (formatted ? " --formatted" : "");
    std::string text;
    FILE *pipe = popen(command.c_str(), "r");
    if (!pipe) {
        ADD_FAILURE() << "cannot run " << command;
        return text;
    }
    char buffer[65536];
    std::size_t count;
    while ((count = std::fread(buffer, 1, sizeof buffer, pipe)) > 0)
        text.append(buffer, count);
    if (pclose(pipe) != 0)
        ADD_FAILURE() << command << " failed";
    return text;
}

} // namespace VxTest
