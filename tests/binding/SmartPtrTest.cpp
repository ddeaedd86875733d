#include <gtest/gtest.h>

#include "SmartPtr.h"
#include "TreeObject.h"

using VxTest::CTreeObject;

TEST(ReferenceCount, CopiesTakeOverTheCountOfTheirSourceAndZeroDestroys)
{
    auto *source = new CTreeObject("a");
    EXPECT_EQ(source->AddRef(), 1); // objects start at zero
    source->AddRef();
    source->AddRef();
    auto *copy = new CTreeObject(*source);
    EXPECT_EQ(copy->AddRef(), 4);

    auto *target = new CTreeObject("b");
    target->AddRef();
    *target = *source; // assignment overwrites the target's count
    EXPECT_EQ(target->AddRef(), 4);

    for (CTreeObject *object : {source, copy, target}) {
        bool destroyed = false;
        object->WatchDestruction(&destroyed);
        while (object->Release() > 0)
            EXPECT_FALSE(destroyed);
        EXPECT_TRUE(destroyed); // at zero, and not before
    }
}

TEST(SmartPtr, HoldsOneReferenceAndSurvivesSelfAssignment)
{
    bool firstDestroyed = false;
    bool secondDestroyed = false;
    CSmartPtr<CTreeObject> pointer = new CTreeObject("a");
    pointer->WatchDestruction(&firstDestroyed);
    CTreeObject *raw = pointer;

    // The only reference: a release before the new reference would destroy the object.
    pointer = raw;
    CSmartPtr<CTreeObject> &alias = pointer;
    pointer = alias;
    {
        CSmartPtr<CTreeObject> copy(pointer);
        EXPECT_EQ(raw->AddRef(), 3);
        EXPECT_EQ(raw->Release(), 2);
    }
    EXPECT_FALSE(firstDestroyed);

    CSmartPtr<CTreeObject> other = new CTreeObject("b");
    other->WatchDestruction(&secondDestroyed);
    pointer = other;
    EXPECT_TRUE(firstDestroyed);
    other = CSmartPtr<CTreeObject>();
    EXPECT_FALSE(secondDestroyed);
    pointer = nullptr;
    EXPECT_TRUE(secondDestroyed);
}
