#pragma once

#include <gtest/gtest.h>

#include <string>
#include <typeinfo>

#include "Exceptions.h"

namespace VxTest {

// Parses the text with Expat in namespace mode; returns the error text, or empty when
// the text is well-formed.
std::string ExpatCheck(const std::string &text);

// Runs the operation and checks that it throws exactly the kind Kind (not a subclass)
// with exactly this message.
template <class Kind, class Operation>
void ExpectFailure(Operation operation, const std::string &message)
{
    try {
        operation();
        ADD_FAILURE() << "no failure, expected: " << message;
    } catch (const VxXmlLib16::CVxException &e) {
        EXPECT_EQ(typeid(e), typeid(Kind)) << e.GetMessage();
        EXPECT_EQ(e.GetMessage(), message);
    }
}

} // namespace VxTest
