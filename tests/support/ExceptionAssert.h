#pragma once
// Checks that an action throws exactly the given kind of CVxException with the given text.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <typeinfo>
#include <vector>

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

// The exception chain of an action, outermost first: one "Kind: message" per level, the
// message with its path. Empty when nothing was thrown.
inline std::vector<std::string> Chain(const std::function<void()> &action)
{
    namespace vx = VxXmlLib16;
    static const std::pair<const std::type_info *, const char *> kinds[] = {
        {&typeid(vx::CVxException), "Exception"},
        {&typeid(vx::CVxValidationException), "Validation"},
        {&typeid(vx::CVxInvalidValueException), "InvalidValue"},
        {&typeid(vx::CVxInvalidNamespaceException), "InvalidNamespace"},
        {&typeid(vx::CVxInvalidParamException), "InvalidParam"},
        {&typeid(vx::CVxInvalidStateException), "InvalidState"}};
    std::vector<std::string> levels;
    try {
        action();
    } catch (const vx::CVxException &e) {
        for (const vx::CVxException *level = &e; level; level = level->GetInnerException()) {
            std::string kind = "Other";
            for (const auto &[type, name] : kinds)
                if (typeid(*level) == *type)
                    kind = name;
            levels.push_back(kind + ": " + level->GetMessage());
        }
    }
    return levels;
}

using Levels = std::vector<std::string>;

} // namespace VxTest
