#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "util_handles.hpp"

using namespace kovra;
using namespace kovra::test;

namespace {

std::string octets_of(const BigInteger &number) {
    const Blob blob(kovra_biginteger_getdata(number.get()));
    return text_of(blob.get());
}

BigInteger number_of(const std::string &octets) {
    return BigInteger(kovra_biginteger_newdata(octets.data(), size_of(octets)));
}

std::string decimal_of(const BigInteger &number) {
    return Memory<char>(kovra_biginteger_todecimal(number.get())).get();
}

} // namespace

TEST(UtilBigInteger, OrderIsThatOfTheValues) {
    const char *ascending[] = {"-80000000000", "-1000001", "-1000000", "-10000",
                               "-ffff",        "-100",     "-81",      "-80",
                               "-2",           "-1",       "0",        "1",
                               "7f",           "80",       "ff",       "100",
                               "101",          "ffff",     "10000",    "fffffffffffffffffffff"};
    for (size_t i = 0; i < std::size(ascending); ++i)
        for (size_t j = 0; j < std::size(ascending); ++j) {
            const BigInteger left(kovra_biginteger_newhex(ascending[i]));
            const BigInteger right(kovra_biginteger_newhex(ascending[j]));
            int32_t order = 9;
            EXPECT_EQ(1, kovra_biginteger_compare(left.get(), right.get(), &order));
            EXPECT_EQ(i < j ? -1 : (i > j ? 1 : 0), order) << ascending[i] << " " << ascending[j];
        }
}

// Sizes around every change of method: plain, one level of halves, several, transforms; both carries and borrows all
// the way.
TEST(UtilBigInteger, LargeNumbersSurviveDecimalText) {
    std::mt19937 random(7);
    for (const size_t size : {4U, 100U, 112U, 113U, 223U, 224U, 225U, 447U, 449U, 900U, 1791U, 1793U, 5000U, 8191U,
                              8193U, 14337U, 20000U}) {
        for (const int pattern : {0, 1, 2, 3}) {
            std::string octets(size, pattern == 1 ? '\xFF' : '\0');
            if (pattern == 0)
                for (char &octet : octets)
                    octet = static_cast<char>(random());
            octets[0] = pattern == 3 ? '\x80' : '\x4C';
            const BigInteger number = number_of(octets);
            const std::string decimal = decimal_of(number);
            ASSERT_EQ(octets, octets_of(BigInteger(kovra_biginteger_newdecimal(decimal.c_str())))) << size;
        }
    }
    // Powers of ten have texts that are known.
    for (const size_t zeros : {9U, 243U, 252U, 261U, 500U, 999U, 3000U, 9999U}) {
        for (const std::string &text : {"1" + std::string(zeros, '0'), "-" + std::string(zeros, '9')})
            ASSERT_EQ(text, decimal_of(BigInteger(kovra_biginteger_newdecimal(text.c_str()))));
    }
}

TEST(UtilBitSet, GrowsWithClearBits) {
    const BitSet set(kovra_bitset_empty());
    std::vector<bool> model;
    std::mt19937 random(3);
    for (int step = 0; step < 2000; ++step) {
        const size_t bit = random() % (static_cast<size_t>(step) * 2 + 1);
        const bool value = random() % 2 == 0;
        if (bit >= model.size())
            model.resize(bit + 1);
        model[bit] = value;
        const auto change = value ? kovra_bitset_set : kovra_bitset_clear;
        ASSERT_EQ(1, change(set.get(), static_cast<int32_t>(bit)));
        ASSERT_EQ(static_cast<int32_t>(model.size()), kovra_bitset_getsize(set.get()));
    }
    int32_t unused = -1;
    const Blob blob(kovra_bitset_getdata(set.get(), &unused));
    const std::string octets = text_of(blob.get());
    ASSERT_EQ(model.size(), octets.size() * 8 - static_cast<size_t>(unused));
    const BitSet copy(kovra_bitset_new(unused, octets.data(), size_of(octets)));
    for (size_t bit = 0; bit < octets.size() * 8; ++bit) {
        const bool expected = bit < model.size() && model[bit];
        ASSERT_EQ(expected, (static_cast<uint8_t>(octets[bit / 8]) >> (7 - bit % 8) & 1) != 0);
        ASSERT_EQ(expected ? 1 : 0, kovra_bitset_test(set.get(), static_cast<int32_t>(bit)));
        ASSERT_EQ(expected ? 1 : 0, kovra_bitset_test(copy.get(), static_cast<int32_t>(bit)));
    }
}
