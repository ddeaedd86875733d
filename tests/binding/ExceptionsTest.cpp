#include <gtest/gtest.h>

#include <string>
#include <typeinfo>

#include "Exceptions.h"

using namespace VxXmlLib16;

TEST(Exceptions, PathJoinsTheMessageOnlyWhenNotEmptyAndFullMessageWalksTheChain)
{
    const CVxException withoutPath("m", "");
    EXPECT_EQ(withoutPath.GetMessage(), "m");

    const CVxException withPath("m", "/a/b");
    EXPECT_EQ(withPath.GetMessage(), "m\nPath: /a/b");
    EXPECT_EQ(withPath.GetPath(), "/a/b");

    const CVxInvalidParamException innermost("what went wrong");
    const CVxValidationException middle("m", "p", innermost);
    const CVxException outer("what was being done", middle);
    EXPECT_EQ(outer.GetFullMessage(), "what was being done\nm\nPath: p\nwhat went wrong");
    EXPECT_EQ(outer.GetPath(), "");
}

TEST(Exceptions, WrappedExceptionsKeepTheirKindConvertedOnesTakeANewOne)
{
    // Each kind clones as itself, also two levels down in a copy of a chain.
    const auto keepsKind = [](const CVxException &wrapped) {
        const CVxException chain("level 2", CVxException("level 1", wrapped));
        const CVxException copy(chain);
        const CVxException *inner = copy.GetInnerException()->GetInnerException();
        return typeid(*inner) == typeid(wrapped) && inner->GetMessage() == wrapped.GetMessage();
    };
    EXPECT_TRUE(keepsKind(CVxInvalidNamespaceException("refused", "/r")));
    EXPECT_TRUE(keepsKind(CVxValidationException("v", "")));
    EXPECT_TRUE(keepsKind(CVxInvalidValueException("v")));
    EXPECT_TRUE(keepsKind(CVxInvalidParamException("v")));
    EXPECT_TRUE(keepsKind(CVxInvalidStateException("v")));
    EXPECT_TRUE(keepsKind(CVxOverFlowException("v")));

    // The base copy is how the reading side loses the kind but keeps everything else.
    const CVxException plain(CVxValidationException("m", "/p", CVxOverFlowException("too big")));
    EXPECT_EQ(typeid(plain), typeid(CVxException));
    const CVxInvalidStateException state(plain);
    EXPECT_EQ(state.GetPath(), "/p");
    EXPECT_EQ(state.GetFullMessage(), "m\nPath: /p\ntoo big");
    EXPECT_EQ(typeid(*state.GetInnerException()), typeid(CVxOverFlowException));
}

TEST(Exceptions, AssignmentKeepsTheTargetPathAndSurvivesItsOwnInner)
{
    CVxException target("old", "q", CVxInvalidParamException("old inner"));
    const CVxException source("new", "p", CVxInvalidStateException("new inner"));
    target = source;
    EXPECT_EQ(target.GetPath(), "q");
    EXPECT_EQ(target.GetMessage(), "new\nPath: p");
    EXPECT_EQ(typeid(*target.GetInnerException()), typeid(CVxInvalidStateException));
    EXPECT_NE(target.GetInnerException(), source.GetInnerException());

    target = target;
    EXPECT_EQ(target.GetFullMessage(), "new\nPath: p\nnew inner");

    // Assigning from the own inner exception: it dies during the assignment.
    CVxValidationException outer("outer", "/o", CVxValidationException("inner", "/i", CVxException("deep")));
    outer = static_cast<const CVxValidationException &>(*outer.GetInnerException());
    EXPECT_EQ(outer.GetFullMessage(), "inner\nPath: /i\ndeep");
    EXPECT_EQ(outer.GetPath(), "/o");

    CVxException plain("outer", CVxException("inner", CVxException("deep")));
    plain = *plain.GetInnerException();
    EXPECT_EQ(plain.GetFullMessage(), "inner\ndeep");
}

TEST(Exceptions, FormatStringNeverTruncates)
{
    const std::string longValue(100000, 'x');
    EXPECT_EQ(FormatString("[%s] is %d long", longValue.c_str(), 100000), "[" + longValue + "] is 100000 long");
}
