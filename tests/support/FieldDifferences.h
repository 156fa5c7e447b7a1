// Equality tests as tables: two objects built alike, then one or both
// changed as a case says (usually in one field), and whether they still
// compare equal. Each case is one parameterised test named after it.
#ifndef QRMKIT_TEST_FIELD_DIFFERENCES_H
#define QRMKIT_TEST_FIELD_DIFFERENCES_H

#include <gtest/gtest.h>

#include <ostream>
#include <string>

template <class T>
struct FieldDifference {
    const char* name;
    void (*change)(T& left, T& right);
    bool equal;
};

template <class T>
void PrintTo(const FieldDifference<T>& difference, std::ostream* out)
{
    *out << difference.name;
}

// The test name of a case: its own name.
struct NameOfDifference {
    template <class T>
    std::string operator()(const testing::TestParamInfo<FieldDifference<T>>& info) const
    {
        return info.param.name;
    }
};

// Changes the pair as the case says, then compares with == and != both ways
// round.
template <class T>
void ExpectDifference(const FieldDifference<T>& difference, T left, T right)
{
    difference.change(left, right);
    EXPECT_EQ(difference.equal, left == right);
    EXPECT_EQ(!difference.equal, left != right);
    EXPECT_EQ(difference.equal, right == left);
    EXPECT_EQ(!difference.equal, right != left);
}

#endif
