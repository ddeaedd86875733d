#pragma once
// Checks that an action throws exactly the given kind of CVxException with the given text.

#include <gtest/gtest.h>

#include <string>
#include <typeinfo>

#include "Exceptions.h"

namespace VxTest {

template <class Expected, class Action>
::testing::AssertionResult Throws(Action &&action, const std::string &message)
{
    try {
        action();
    } catch (const VxXmlLib16::CVxException &e) {
        if (typeid(e) != typeid(Expected))
            return ::testing::AssertionFailure() << "kind " << typeid(e).name() << " with \"" << e.GetMessage() << "\"";
        if (e.GetMessage() != message)
            return ::testing::AssertionFailure() << "message \"" << e.GetMessage() << "\"";
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "no exception";
}

} // namespace VxTest
