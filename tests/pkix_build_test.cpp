// Functions of names, certificates, extensions, CRLs and requests that do more than fill and give components.
#include <set>

#include "base/thresholds.hpp"
#include "tests/failing_memory.hpp"
#include "tests/pkix_testing.hpp"

#if defined(__SANITIZE_ADDRESS__)
// A BOOLEAN of each call with a length stays behind, which callers are told.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:kovra_x509basicconstraints_new";
}
#endif

namespace kovra::test {
namespace {

using Get = kovra_asn1_value *(*)(const kovra_asn1_value *);

Value noted_value(uint32_t type, std::string_view text) {
    return decode(type, noted(text)).value;
}

std::string noted_hex(std::string_view text) {
    return hex(noted(text));
}

// A value borrowed from another, as hexadecimal; "-" for null. Releasing it does nothing.
std::string borrowed(uint32_t type, kovra_asn1_value *value) {
    if (value == nullptr)
        return "-";
    kovra_asn1_value_free(type, value);
    return hex(encode(type, value).octets);
}

Value list_of(std::initializer_list<kovra_asn1_value *> elements) {
    Value list(24, kovra_asn1_list_new());
    for (kovra_asn1_value *element : elements)
        EXPECT_EQ(kovra_asn1_list_put(list.get(), element), 1);
    return list;
}

std::string as_type(uint32_t type, const Value &value) {
    return hex(encode(type, value.get()).octets);
}

kovra_asn1_value *element_of(kovra_asn1_value *list, int32_t index) {
    kovra_asn1_value *element = nullptr;
    EXPECT_EQ(kovra_asn1_list_get(list, index, &element), 1);
    return element;
}

TEST(PkixBuild, ParametersOfAlgorithms) {
    const Value oid = noted_value(6, "{oid}"), integer = noted_value(2, "{int}");
    const Value segmented = noted_value(23, "24[04 01 41]");
    auto made = [&](uint32_t type, const kovra_asn1_value *parameters) {
        Value algorithm(33, kovra_x509algoid_new(oid.get(), type, parameters));
        return algorithm ? encoding(algorithm) + (kovra_x509algoid_isnullparam(algorithm.get()) == 1 ? " NULL" : "")
                         : "-";
    };
    EXPECT_EQ(made(5, nullptr), noted_hex("{alg}") + " NULL");
    EXPECT_EQ(made(2, integer.get()), noted_hex("30({oid} {int})"));
    EXPECT_EQ(made(23, segmented.get()), noted_hex("30[{oid} 24[04 01 41]]"));
    EXPECT_EQ(made(0, nullptr), "-");
    EXPECT_EQ(made(2, nullptr), "-");
    EXPECT_EQ(made(2, oid.get()), "-");
    EXPECT_EQ(made(208, integer.get()), "-");
    fail_each_allocation([&] { return made(2, integer.get()) != "-"; });
    for (auto [text, expected] : {std::pair{"{alg}", 1},
                                  {"30({oid} 05 81 00)", 1},
                                  {"30({oid})", 0},
                                  {"30({oid} 05 01 00)", 0},
                                  {"30({oid} 85 00)", 0},
                                  {"30({oid} {int})", 0}})
        EXPECT_EQ(kovra_x509algoid_isnullparam(noted_value(33, text).get()), expected) << text;
}

TEST(PkixBuild, NamesGrow) {
    Value name(32, kovra_x500name_new());
    EXPECT_EQ(encoding(name), "3000");
    Value rdn = noted_value(31, "{rdn}"), other = noted_value(31, "31(30({oid} {int}))");
    EXPECT_EQ(kovra_x500name_addrdn(name.get(), rdn.get(), 1), 1);
    EXPECT_EQ(encoding(name), noted_hex("{name}"));
    EXPECT_EQ(kovra_x500name_addrdn(name.get(), other.get(), 0), 1);
    other.release();
    EXPECT_EQ(encoding(name), noted_hex("30({rdn} 31(30({oid} {int})))"));
    // Octets that were kept are dropped.
    Value read = noted_value(32, "30[31<{atv}>]");
    EXPECT_EQ(kovra_x500name_addrdn(read.get(), rdn.get(), -1), 1);
    EXPECT_EQ(encoding(read), noted_hex("30({rdn} {rdn})"));
    EXPECT_EQ(kovra_asn1_list_getsize(kovra_x500name_getdn(read.get())), 2);
    // What is borrowed cannot be taken over, but be copied.
    kovra_asn1_value *own = element_of(kovra_x500name_getdn(name.get()), 0);
    EXPECT_EQ(kovra_x500name_addrdn(name.get(), own, 0), 0);
    EXPECT_EQ(kovra_x500name_addrdn(name.get(), own, 1), 1);
    EXPECT_EQ(kovra_asn1_list_getsize(kovra_x500name_getdn(name.get())), 3);
    // A name that a certificate holds grows, and what the certificate writes stays.
    const Value cert = noted_value(39, "{cert}");
    EXPECT_EQ(kovra_x500name_addrdn(kovra_x509pubkeycert_getsubject(cert.get()), rdn.get(), 1), 1);
    EXPECT_EQ(borrowed(32, kovra_x509pubkeycert_getsubject(cert.get())), noted_hex("30({rdn} {rdn})"));
    EXPECT_EQ(encoding(cert), noted_hex("{cert}"));
    // Refused arguments change nothing.
    Value foreign = list_of({noted_value(2, "{int}").release()});
    const std::string before = encoding(name);
    EXPECT_EQ(kovra_x500name_addrdn(name.get(), name.get(), 0), 0);
    EXPECT_EQ(kovra_x500name_addrdn(name.get(), foreign.get(), 1), 0);
    EXPECT_EQ(encoding(name), before);
    fail_each_allocation(
        [&] { return kovra_x500name_addrdn(Value(32, kovra_x500name_new()).get(), rdn.get(), 1) == 1; });
    // A list of other values is taken over, and then nothing can write the name.
    EXPECT_EQ(kovra_x500name_addrdn(name.get(), foreign.release(), 0), 1);
    EXPECT_EQ(encode(32, name.get()).codes, Codes({0x102ea}));
    EXPECT_EQ(encode_content(32, name.get(), 0).codes, Codes({0x1020b, 0x10248}));
    EXPECT_EQ(kovra_asn1_length(32, name.get()), -2);
}

TEST(PkixBuild, SortingShowsInWhatIsWrittenNext) {
    constexpr char small[] = "30({oid} {int})", large[] = "30({oid} {text})";
    auto record = [](const char *text) {
        Value read = noted_value(29, text);
        return kovra_x500attrtypedistval_new(
            kovra_x500attrtypedistval_gettype(read.get()), kovra_x500attrtypedistval_getvalue(read.get()),
            kovra_x500attrtypedistval_getprimedist(read.get()), kovra_x500attrtypedistval_getcontext(read.get()));
    };
    Value rdn = list_of({record(large), record(small)});
    EXPECT_EQ(kovra_x500RDN_sort(rdn.get()), 1);
    EXPECT_EQ(as_type(31, rdn), noted_hex("31(30({oid} {int}) 30({oid} {text}))"));
    // Values with context: first the contexts of each, then they themselves.
    constexpr char contexts[] = "30({oid} {int} 31(30(31(30(06 01 2B 31({null})) 30(06 01 2A 31({null})))) 30(31 00)))";
    constexpr char sorted[] = "30({oid} {int} 31(30(31 00) 30(31(30(06 01 2A 31({null})) 30(06 01 2B 31({null}))))))";
    Value alone = list_of({record(contexts)});
    EXPECT_EQ(kovra_x500RDN_sort(alone.get()), 1);
    EXPECT_EQ(as_type(31, alone), hex(noted(std::string("31(") + sorted + ")")));
    // In a name that was read the order in memory changes, not what was kept.
    Value name = noted_value(32, "30(31(30({oid} {text}) 30({oid} {int})) {rdn})");
    const std::string as_read = encoding(name);
    EXPECT_EQ(kovra_x500name_sort(name.get()), 1);
    kovra_asn1_value *first = element_of(element_of(kovra_x500name_getdn(name.get()), 0), 0);
    EXPECT_EQ(borrowed(29, first), noted_hex(small));
    EXPECT_EQ(encoding(name), as_read);
    EXPECT_EQ(kovra_x500name_addrdn(name.get(), alone.release(), 0), 1);
    EXPECT_EQ(encoding(name),
              hex(noted(std::string("30(31(30({oid} {int}) 30({oid} {text})) {rdn} 31(") + sorted + "))")));
    // Attributes keep no octets.
    Value attribute =
        noted_value(42, "30({oid} 31({text} {int} {null}) 31(30({int} 31(30(06 01 2B 31({null})) 30(06 01 "
                        "2A 31({null})))) 30({int} 31 00)))");
    EXPECT_EQ(kovra_x500attribute_sort(attribute.get()), 1);
    EXPECT_EQ(encoding(attribute),
              noted_hex("30({oid} 31({int} {null} {text}) 31(30({int} 31 00) 30({int} 31(30(06 01 2A "
                        "31({null})) 30(06 01 2B 31({null}))))))"));
    Value attributes = noted_value(44, "31(30({oid} 31({text} {int})) 30({oid} 31({null})))");
    EXPECT_EQ(kovra_asn1_pkcs10attributes_sort(attributes.get()), 1);
    EXPECT_EQ(encoding(attributes), noted_hex("31(30({oid} 31({null})) 30({oid} 31({int} {text})))"));
    // The second octet decides: the length.
    Value values = noted_value(42, "30({oid} 31(02 02 00 80 02 01 05))");
    EXPECT_EQ(kovra_x500attribute_sort(values.get()), 1);
    EXPECT_EQ(encoding(values), noted_hex("30({oid} 31(02 01 05 02 02 00 80))"));

    const Value foreign = list_of({noted_value(2, "{int}").release(), noted_value(2, "{int}").release()});
    EXPECT_EQ(kovra_x500RDN_sort(foreign.get()) + kovra_asn1_pkcs10attributes_sort(foreign.get()), 0);
    fail_each_allocation([&] {
        Value unsorted = noted_value(44, "31(30({oid} 31({text} {int})) 30({oid} 31({null})))");
        return unsorted && kovra_asn1_pkcs10attributes_sort(unsorted.get()) == 1;
    });
}

TEST(PkixBuild, StringsOfSeveralKinds) {
    const Value string = decoded(4, "04 02 41 42");
    const struct {
        uint32_t type;
        kovra_asn1_value *(*make)(int32_t, const kovra_asn1_value *);
        int32_t (*get_type)(const kovra_asn1_value *, int32_t *);
        Get get_string;
        std::set<int32_t> tags;
    } rows[] = {
        {47, kovra_x500dirstring_new, kovra_x500dirstring_gettype, kovra_x500dirstring_getstring, {12, 19, 20, 28, 30}},
        {52, kovra_pkcs9string_new, kovra_pkcs9string_gettype, kovra_pkcs9string_getstring, {12, 19, 20, 22, 28, 30}},
        {71,
         kovra_pkixdisplaytext_new,
         kovra_pkixdisplaytext_gettype,
         kovra_pkixdisplaytext_getstring,
         {12, 22, 26, 30}}};
    for (const auto &row : rows)
        for (int32_t tag : {-20, 0, 12, 18, 19, 20, 22, 26, 27, 28, 30, 31, 44, 12 + 256, INT32_MIN}) {
            int32_t found = -7;
            const Value made(row.type, row.make(tag, string.get()));
            EXPECT_EQ(row.get_type(made.get(), &found), static_cast<int32_t>(row.tags.count(tag)));
            EXPECT_EQ(found, made ? tag : -7);
            EXPECT_EQ(borrowed(4, row.get_string(made.get())), made ? "04024142" : "-");
            EXPECT_EQ(encoding(made), made ? hex(std::string(1, static_cast<char>(tag))) + "024142" : "");
        }
}

TEST(PkixBuild, PairsOfIdentifiers) {
    const std::string issuer = noted("{u16}"), subject(16, '\xEE');
    Value pair(48, kovra_x500uuidpair_new(issuer.data(), subject.data()));
    EXPECT_EQ(encoding(pair), "30240410" + hex(issuer) + "0410" + hex(subject));
    std::string out(17, '!');
    EXPECT_EQ(kovra_x500uuidpair_getissueruuid(pair.get(), out.data()), 1);
    EXPECT_EQ(out, issuer + "!");
    EXPECT_EQ(kovra_x500uuidpair_getsubjectuuid(pair.get(), out.data()), 1);
    EXPECT_EQ(out, subject + "!");
    EXPECT_EQ(kovra_x500uuidpair_getsubjectuuid(pair.get(), nullptr), 0);
    EXPECT_EQ(kovra_x500uuidpair_new(nullptr, subject.data()), nullptr);
    EXPECT_EQ(kovra_x500uuidpair_new(issuer.data(), nullptr), nullptr);
}

// When the values cannot be copied, what is released is the caller's own type.
TEST(PkixBuild, AttributesTakeTheirTypeWithThem) {
    const Value values = noted_value(26, "31({int} {null})"), integer = noted_value(2, "{int}");
    Value type = noted_value(6, "{oid}");
    Value made(42, kovra_x500attribute_new(type.get(), values.get()));
    EXPECT_EQ(encoding(made), noted_hex("30({oid} 31({int} {null}))"));
    EXPECT_EQ(encoding(type), noted_hex("{oid}"));
    EXPECT_EQ(encoding(integer), noted_hex("{int}"));
    made = Value();
    const int64_t before = live_blocks();
    for (int64_t good = 0; good < 100 && is_memory_watched(); ++good) {
        Value own = noted_value(6, "{oid}");
        const int64_t with_type = live_blocks();
        {
            const ScarceMemory scarce(good);
            made = Value(42, kovra_x500attribute_new(own.get(), values.get()));
        }
        if (!made && live_blocks() < with_type)
            own.release();
        if (made)
            break;
    }
    EXPECT_TRUE(made || !is_memory_watched());
    made = Value();
    EXPECT_EQ(live_blocks(), before);
    EXPECT_EQ(kovra_x500attribute_new(type.release(), integer.get()), nullptr);
}

TEST(PkixBuild, RecordsThatOneTypeAllowsAndAnotherRefuses) {
    struct Restriction {
        uint32_t wide, narrow;
        const char *text;
        int32_t length;
        Codes whole, content;
    };
    const Restriction restrictions[] = {{29, 30, "30({oid} {int} 01 01 00)", -2, {0x10274}, {0x10274}},
                                        {29, 30, "30({oid} {int} 31 00)", -2, {0x10274}, {0x10274}},
                                        {42, 43, "30({oid} 31 00 31 00)", 10, {0x1027d}, {0x1027d}},
                                        {80, 81, "30(A2 00)", -2, {0x1020b}, {0x102cc}}};
    for (const Restriction &row : restrictions) {
        SCOPED_TRACE(row.text);
        const Value value = noted_value(row.wide, row.text);
        const int32_t length = size_of(noted(row.text));
        EXPECT_EQ(kovra_asn1_length(row.wide, value.get()), length);
        EXPECT_EQ(kovra_asn1_length(row.narrow, value.get()), row.length);
        EXPECT_EQ(encode(row.narrow, value.get()).codes, row.whole);
        EXPECT_EQ(encode_content(row.narrow, value.get(), length - 2).codes, row.content);
        EXPECT_EQ(kovra_asn1_dupobject(row.narrow, value.get(), nullptr), nullptr);
    }
    Value attributes = noted_value(75, "30(30({oid} 31 00 31 00))");
    EXPECT_EQ(encode(44, attributes.get()).codes, Codes({0x1027d, 0x10262}));
    const Value version = decoded(2, "02 01 00"), name = noted_value(32, "{name}"), key = noted_value(35, "{spki}");
    EXPECT_EQ(kovra_pkcs10certreqinfo_new(version.get(), name.get(), key.get(), attributes.get()), nullptr);
}

TEST(PkixBuild, SomeWantOneOfTheirPartsAtLeast) {
    EXPECT_EQ(kovra_x509certpair_new(nullptr, nullptr), nullptr);
    EXPECT_EQ(kovra_x509privkeyperiod_new(nullptr, nullptr), nullptr);
}

TEST(PkixBuild, NamesOfPartsThatCannotBeCopied) {
    // An other-name is copied as the EDI party name that it is not.
    const Value other = noted_value(61, "28({oid} A0({int}))"), party = noted_value(62, "30(A1({text}))");
    EXPECT_EQ(kovra_x509generalname_new_othername(other.get()), nullptr);
    Value useless(63, kovra_x509generalname_new_othername(party.get()));
    int32_t choice = -7;
    EXPECT_EQ(kovra_x509generalname_gettype(useless.get(), &choice), 1);
    EXPECT_EQ(choice, 0);
    EXPECT_NE(kovra_x509generalname_getothername(useless.get()), nullptr);
    EXPECT_EQ(kovra_instanceoftypeid_getid(kovra_x509generalname_getothername(useless.get())), nullptr);
    EXPECT_EQ(kovra_asn1_length(63, useless.get()), -2);
    EXPECT_EQ(encode(63, useless.get()).codes, Codes({0x102ea}));
    const Value holder = list_of({useless.release()});
    EXPECT_EQ(encode(64, holder.get()).codes, Codes({0x1020b}));

    // An EDI party name is made even of parts that cannot be copied.
    const Value text = noted_value(47, "{text}"), integer = noted_value(2, "{int}");
    Value no_assigner(62, kovra_x509edipartyname_new(integer.get(), text.get()));
    EXPECT_EQ(kovra_x509edipartyname_getnameassigner(no_assigner.get()), nullptr);
    EXPECT_EQ(encoding(no_assigner), noted_hex("30(A1({text}))"));
    Value no_party(62, kovra_x509edipartyname_new(text.get(), integer.get()));
    ASSERT_TRUE(no_party);
    EXPECT_EQ(kovra_x509edipartyname_getpartyname(no_party.get()), nullptr);
    EXPECT_EQ(kovra_asn1_length(62, no_party.get()), -2);
    EXPECT_EQ(encode(62, no_party.get()).codes, Codes({0x1020b}));
    EXPECT_EQ(encode_content(62, no_party.get(), 10).codes, Codes({0x102ea}));
    EXPECT_EQ(kovra_x509generalname_new_ediname(no_party.get()), nullptr);
}

TEST(PkixBuild, BasicConstraintsLeaveABooleanBehind) {
    const Value yes = decoded(1, "01 01 FF"), no = decoded(1, "01 01 00"), length = decoded(2, "02 01 03");
    auto made = [](const kovra_asn1_value *ca, const kovra_asn1_value *path_length) {
        const int64_t before = live_blocks();
        Value value(76, kovra_x509basicconstraints_new(ca, path_length));
        std::string text = value ? encoding(value) : "-";
        EXPECT_EQ(kovra_x509basicconstraints_getisca(value.get()) != nullptr, static_cast<bool>(value));
        EXPECT_EQ(kovra_x509basicconstraints_getlen(value.get()) != nullptr, value && path_length != nullptr);
        value = Value();
        EXPECT_TRUE(live_blocks() == before + (path_length != nullptr ? 1 : 0) || !is_memory_watched());
        return text;
    };
    EXPECT_EQ(made(nullptr, nullptr), "3000");
    EXPECT_EQ(made(yes.get(), nullptr), "30030101FF");
    EXPECT_EQ(made(yes.get(), length.get()), "30060101FF020103");
    EXPECT_EQ(made(no.get(), length.get()), "3003020103");
    EXPECT_EQ(made(nullptr, length.get()), "3003020103");
    EXPECT_EQ(made(length.get(), nullptr), "-");
    EXPECT_EQ(made(yes.get(), yes.get()), "-");
}

TEST(PkixBuild, IssuingDistributionPoints) {
    const Value yes = decoded(1, "01 01 FF"), no = decoded(1, "01 01 00");
    EXPECT_EQ(kovra_pkixidp_new(nullptr, yes.get(), yes.get(), nullptr, nullptr), nullptr);
    Value authorities(88, kovra_pkixidp_new(nullptr, no.get(), yes.get(), nullptr, nullptr));
    EXPECT_EQ(encoding(authorities), "30038201FF");
    EXPECT_EQ(kovra_asn1_boolean_istrue(kovra_pkixidp_getonlyattrcert(authorities.get())), 0);
    EXPECT_NE(kovra_pkixidp_getonlyattrcert(authorities.get()), nullptr);
    EXPECT_EQ(kovra_asn1_boolean_istrue(kovra_pkixidp_getonlyattrcert(decoded(88, "30 03 85 01 FF").get())), 1);
    EXPECT_EQ(encoding(Value(89, kovra_x509aaidp_new(nullptr, no.get(), nullptr, nullptr, nullptr, nullptr))),
              "3003840100");
    EXPECT_EQ(encoding(Value(89, kovra_x509aaidp_new(nullptr, nullptr, no.get(), nullptr, nullptr, nullptr))),
              "3003830100");
}

TEST(PkixBuild, ListsOfRevokedCertificates) {
    const Value algorithm = noted_value(33, "{alg}"), name = noted_value(32, "{name}"),
                time = noted_value(20, "{time}");
    auto made = [&](kovra_asn1_value *list, int32_t copy, const kovra_asn1_value *signature) {
        return Value(
            40, kovra_x509TBSCertList_new(nullptr, signature, name.get(), time.get(), nullptr, list, copy, nullptr));
    };
    const std::string full = noted_hex("30({alg} {name} {time} 30({entry}))");
    Value list = noted_value(140, "30({entry})"), none(140, kovra_asn1_list_new());
    EXPECT_EQ(encoding(made(nullptr, 0, algorithm.get())), noted_hex("{clist}"));
    EXPECT_EQ(encoding(made(list.get(), 1, algorithm.get())), full);
    EXPECT_EQ(encoding(made(none.get(), 1, algorithm.get())), noted_hex("30({alg} {name} {time} 30 00)"));
    // The list is taken over only when there is something to own it.
    EXPECT_FALSE(made(list.get(), 0, nullptr));
    EXPECT_EQ(as_type(140, list), noted_hex("30({entry})"));
    Value owner = made(list.get(), 0, algorithm.get());
    EXPECT_EQ(encoding(owner), full);
    EXPECT_FALSE(made(list.get(), 0, algorithm.get())) << "it is borrowed now";
    list.release();
    Value foreign = list_of({noted_value(2, "{int}").release()});
    EXPECT_FALSE(made(foreign.get(), 1, algorithm.get()));
    EXPECT_FALSE(made(const_cast<kovra_asn1_value *>(time.get()), 0, algorithm.get()));
    Value odd = made(foreign.release(), 0, algorithm.get());
    EXPECT_EQ(encode(40, odd.get()).codes, Codes({0x1020b}));
    EXPECT_EQ(encode_content(40, odd.get(), -1).codes, Codes({0x1020b, 0x1025c}));
    for (int32_t copy : {0, 1}) {
        fail_each_allocation([&] {
            Value entries = noted_value(140, "30({entry})");
            Value tbs = entries ? made(entries.get(), copy, algorithm.get()) : Value();
            if (tbs && copy == 0)
                entries.release();
            return static_cast<bool>(tbs);
        });
    }
    // Every component.
    const Value version = decoded(2, "02 01 01"), extensions = noted_value(37, "{exts}");
    Value entries = noted_value(140, "30({entry})");
    Value tbs(40, kovra_x509TBSCertList_new(version.get(), algorithm.get(), name.get(), time.get(), time.get(),
                                            entries.get(), 2, extensions.get()));
    EXPECT_EQ(encoding(tbs), noted_hex("30(02 01 01 {alg} {name} {time} {time} 30({entry}) A0({exts}))"));
}

TEST(PkixBuild, ExtensionsOfTypedValues) {
    const Value oid = noted_value(6, "{oid}"), yes = decoded(1, "01 01 FF"), usage = decoded(3, "03 02 05 A0");
    auto made = [&](uint32_t type, const kovra_asn1_value *value) {
        Value extension(36, kovra_x509extension_create(oid.get(), yes.get(), type, value));
        return extension ? encoding(extension) : "-";
    };
    EXPECT_EQ(made(3, usage.get()), noted_hex("30({oid} 01 01 FF 04(03 02 05 A0))"));
    EXPECT_EQ(made(5, nullptr), noted_hex("30({oid} 01 01 FF 04({null}))"));
    EXPECT_EQ(made(66, noted_value(66, "30({oid})").get()), noted_hex("30({oid} 01 01 FF 04(30({oid})))"));
    EXPECT_EQ(made(0, nullptr), "-");
    EXPECT_EQ(made(3, nullptr), "-");
    EXPECT_EQ(made(76, usage.get()), "-");
    EXPECT_EQ(made(208, usage.get()), "-");
    fail_each_allocation([&] { return made(3, usage.get()) != "-"; });
}

// Memory that ends while a component is written is reported with the codes of what holds it, from the inside out.
TEST(PkixBuild, CodesOfWhatThereIsNoRoomFor) {
    if (is_tight)
        GTEST_SKIP() << "an error context has room for one entry only";
    for (const auto &row : table("unwritten.txt")) {
        if (!is_memory_watched())
            break;
        SCOPED_TRACE(row[0] + ": " + row[1]);
        const auto type = static_cast<uint32_t>(std::stoul(row[0]));
        const Value value = noted_value(type, row[1]);
        ASSERT_TRUE(value);
        const int32_t length = kovra_asn1_content_length(type, value.get());
        const Stream stream = memory_stream();
        const Errors ctx(kovra_err_ctx_new());
        {
            const ScarceMemory scarce(0);
            EXPECT_EQ(kovra_asn1_encode_content(stream.get(), type, value.get(), length, nullptr, ctx.get()), 0);
        }
        std::string codes;
        for (int32_t code : Codes(ctx.get())) {
            std::ostringstream text;
            text << std::hex << code;
            codes += (codes.empty() ? "" : " ") + text.str();
        }
        EXPECT_EQ(codes, row[2]);
    }
}

// Components that cannot be written are reported with the code of their type, from the inside out.
TEST(PkixBuild, CodesOfWhatCannotBeWritten) {
    Value foreign = list_of({noted_value(1, "01 01 FF").release()});
    struct Attempt {
        uint32_t type;
        Codes codes;
    };
    const Attempt attempts[] = {
        {31, {0x10001, 0x10246}},  {37, {0x10001, 0x10252}},  {44, {0x10001, 0x10262}},  {49, {0x10001, 0x10284}},
        {54, {0x10001, 0x10290}},  {64, {0x10001, 0x102a2}},  {66, {0x10001, 0x10233}},  {70, {0x10001, 0x102b0}},
        {74, {0x10001, 0x102bc}},  {75, {0x10001, 0x1027b}},  {78, {0x10001, 0x102c4}},  {85, {0x10001, 0x102d3}},
        {87, {0x10001, 0x102d9}},  {137, {0x10001, 0x102ac}}, {138, {0x10001, 0x1020f}}, {140, {0x10001, 0x1025a}},
        {141, {0x10001, 0x1023e}}, {142, {0x10001, 0x10242}}, {143, {0x10001, 0x10277}}, {198, {0x10001, 0x102b0}}};
    for (const Attempt &attempt : attempts) {
        SCOPED_TRACE(attempt.type);
        EXPECT_EQ(encode_content(attempt.type, foreign.get(), 3).codes, attempt.codes);
        EXPECT_EQ(encode(attempt.type, foreign.get()).codes, Codes({0x1020b}));
        EXPECT_EQ(kovra_asn1_length(attempt.type, foreign.get()), -2);
    }
}

} // namespace
} // namespace kovra::test
