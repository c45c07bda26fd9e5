// Constructors of keys, parameters and stores that do more than fill components.
#include "tests/asn1_testing.hpp"
#include "tests/failing_memory.hpp"

namespace kovra::test {
namespace {

TEST(KeysValues, WhatCouldNotBeEncodedIsNotMade) {
    const Value zero = decoded(2, "02 01 00"), first = decoded(2, "02 01 01"), second = decoded(2, "02 01 02");
    const Value others = decoded(145, "30 0B 30 09 02 01 07 02 01 08 02 01 09"), empty(145, kovra_asn1_list_new());
    auto key = [&](const Value &version, const Value &other_primes) {
        const kovra_asn1_value *n = first.get();
        return Value(99, kovra_pkcs1rsaprivatekey_new(version.get(), n, n, n, n, n, n, n, n, other_primes.get()));
    };
    EXPECT_EQ(kovra_pkcs1rsaprivatekey_hasotherprimeinfos(key(zero, Value()).get()), 0);
    EXPECT_EQ(kovra_pkcs1rsaprivatekey_hasotherprimeinfos(key(first, others).get()), 1);
    EXPECT_FALSE(key(zero, others) || key(first, Value()) || key(second, others) || key(first, empty));
    const Value salt_of_7 = decoded(4, "04 07 01020304050607"), id = decoded(6, "06 01 2A"),
                marker = decoded(23, "00 00");
    EXPECT_EQ(kovra_pkcs5pbeparam_new(salt_of_7.get(), first.get()), nullptr);
    EXPECT_EQ(kovra_pkcs12safebag_new(id.get(), marker.get(), nullptr), nullptr);
    EXPECT_EQ(kovra_pkcs12certbag_new(id.get(), marker.get()), nullptr);
    EXPECT_EQ(kovra_pkcs12crlbag_new(id.get(), marker.get()), nullptr);
    EXPECT_EQ(kovra_pkcs12secretbag_new(id.get(), marker.get()), nullptr);
    EXPECT_EQ(kovra_certstore_attr_new(zero.get(), marker.get()), nullptr);
}

TEST(KeysValues, ImplicitCurve) {
    const Value none(201, kovra_ecpkparameters_new_implicitlyca());
    EXPECT_EQ(encoding(none), "0500");
    EXPECT_EQ(kovra_ecpkparameters_gettype(none.get()), 3);
    fail_each_allocation([] { return static_cast<bool>(Value(201, kovra_ecpkparameters_new_implicitlyca())); });
}

} // namespace
} // namespace kovra::test
