#pragma once
// Checks that a call fails with exactly the given exception kind and message.

#include "Exceptions.h"

#include <gtest/gtest.h>

#include <string>

namespace VxTest {

template <class Exception, class Call>
void ExpectFailure(Call call, const std::string &message)
{
    try {
        call();
        ADD_FAILURE() << "no exception, expected: " << message;
    } catch (const Exception &e) {
        EXPECT_EQ(e.GetMessage(), message);
    } catch (const VxXmlLib16::CVxException &e) {
        ADD_FAILURE() << "wrong exception kind, message: " << e.GetMessage();
    }
}

} // namespace VxTest
