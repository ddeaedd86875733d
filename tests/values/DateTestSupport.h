#pragma once
// Checks that a call fails with exactly one exception kind and message.

#include <gtest/gtest.h>

#include <string>

#include "Exceptions.h"

namespace VxTest {

template <class Expected, class Call>
::testing::AssertionResult FailsWith(Call call, const std::string &message)
{
    try {
        call();
    } catch (const Expected &e) {
        if (e.GetMessage() == message)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "message \"" << e.GetMessage() << "\", expected \"" << message
                                             << "\"";
    } catch (const VxXmlLib16::CVxException &e) {
        return ::testing::AssertionFailure() << "other exception kind: " << e.GetMessage();
    }
    return ::testing::AssertionFailure() << "no exception, expected \"" << message << "\"";
}

} // namespace VxTest
