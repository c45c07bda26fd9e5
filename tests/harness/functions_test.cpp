// Every exported function that takes a value, with values of every kind.
#include <algorithm>
#include <map>

#include "core/structure.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/functions.hpp"

#if defined(__SANITIZE_ADDRESS__)
// One constructor loses a BOOLEAN, as is documented.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:kovra_x509basicconstraints_new";
}
#endif

namespace kovra::test {
namespace {

std::vector<std::string> encodings() {
    std::vector<std::string> found;
    for (const Kept &kept : pool())
        found.push_back(encode(kept.type, kept.value.get()).octets);
    return found;
}

// Those that work on more than one kind of value by what they are for.
const std::map<std::string, size_t> &kinds_taken() {
    static const std::map<std::string, size_t> all = {
        {"kovra_asn1_integer_getlength", 2},
        {"kovra_ess_signingcertificate_getcerts", 2},
        {"kovra_ess_signingcertificate_getpolicies", 2},
    };
    return all;
}

TEST(Functions, OneValueOfAnyKind) {
    const std::vector<std::string> before = encodings();
    std::map<std::string, size_t> several;
    for (const Function &function : functions()) {
        if (function.values() != 1)
            continue;
        SCOPED_TRACE(function.name());
        const std::vector<Identity> &taken = kinds_of(function);
        if (taken.size() > 1)
            several[function.name()] = taken.size();
        else
            EXPECT_TRUE(taken.size() == 1 || releases(function)) << "nothing is right for it";
    }
    EXPECT_EQ(several, kinds_taken());
    EXPECT_EQ(encodings(), before);
}

// Those that do not look whether an open type is an end-of-contents marker, which cannot be read again.
bool takes_end_of_contents(const Function &function) {
    static const std::set<std::string_view> all = {"kovra_cmsothercertformat_new",    "kovra_cmsotherkeyattr_new",
                                                   "kovra_cmsotherrecipientinfo_new", "kovra_cmsotherrevinfoformat_new",
                                                   "kovra_pkcs7contentinfo_new",      "kovra_x509polqualifierinfo_new"};
    return all.count(function.row->name) != 0;
}

// The values that a constructor is meant for are found by trying the components of each structure that has as many as
// it has parameters. In each place it takes values of the component's type and no others.
TEST(Functions, SeveralValuesOfAnyKind) {
    const std::vector<std::string> before = encodings();
    std::vector<std::vector<Kept>> components(KOVRA_ASN1_TYPE_COUNT);
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        const core::Type &row = core::row(type);
        const std::vector<Sample> values = component_values(row);
        for (size_t i = 0; i < values.size(); ++i) {
            const uint32_t number =
                static_cast<const core::StructureShape *>(row.shape)->components[i].copied_as->number;
            components[type].push_back({number, values[i].octets, decode(number, values[i].octets).value});
        }
    }
    size_t understood = 0;
    for (const Function &function : functions()) {
        SCOPED_TRACE(function.name());
        std::vector<const Kept *> all(function.values());
        for (const Kept &kept : pool()) {
            for (size_t place = 0; function.values() > 1 && place < function.values(); ++place) {
                std::vector<const Kept *> one(function.values());
                one[place] = &kept;
                call_with(function, one);
            }
            std::fill(all.begin(), all.end(), &kept);
            if (!releases(function))
                call_with(function, all);
        }
        if (function.values() == 0 || releases(function))
            continue;
        for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
            const std::vector<Kept> &values = components[type];
            if (values.size() != function.values())
                continue;
            const auto *shape = static_cast<const core::StructureShape *>(core::row(type).shape);
            std::vector<const Kept *> right;
            for (const Kept &kept : values)
                right.push_back(&kept);
            bool is_made = false;
            call_with(function, right, 0, [&](const Call &call) {
                is_made = call.made[0] != nullptr && is_free(call.made[0]) &&
                          identity(call.made[0]) == Identity(core::Kind::structure, shape->record_shape());
            });
            if (!is_made)
                continue;
            ++understood;
            for (size_t place = 0; place < function.values(); ++place) {
                for (const Kept &kept : pool()) {
                    std::vector<const Kept *> changed = right;
                    changed[place] = &kept;
                    call_with(function, changed, 0, [&](const Call &call) {
                        const auto *made = static_cast<const core::Structure *>(record_of(call.made[0]));
                        EXPECT_TRUE(made == nullptr || made->slot(static_cast<uint8_t>(place)) == nullptr ||
                                    core::holds(*shape->components[place].copied_as, record_of(kept.value.get())))
                            << "place " << place << " takes a value of type " << kept.type;
                        if (made == nullptr || !is_written_as_read(core::row(type)) || takes_end_of_contents(function))
                            return;
                        // What is made can be written, and read again.
                        const Encoded written = encode(type, call.made[0]);
                        EXPECT_TRUE(written.result != 1 || decode(type, written.octets).result == 1)
                            << "place " << place << " with a value of type " << kept.type << ": " << hex(kept.octets);
                    });
                }
            }
            break;
        }
    }
    RecordProperty("understood", static_cast<int>(understood));
    // All that take the parts of a structure: one that makes nothing any more is missed here.
    EXPECT_GE(understood, 109u);
    EXPECT_EQ(encodings(), before);
}

// A function of one value that makes something of it, where memory is short.
TEST(Functions, EveryAllocationMayFail) {
    for (const Function &function : functions()) {
        SCOPED_TRACE(function.name());
        if (function.values() != 1 || function.may_change())
            continue;
        for (const Identity &kind : kinds_of(function)) {
            for (const int32_t number : numbers) {
                const auto first = std::find_if(pool().begin(), pool().end(), [&](const Kept &kept) {
                    return identity(kept.value.get()) == kind && call_with(function, {&kept}, number) == 1;
                });
                if (first != pool().end())
                    fail_each_allocation([&] { return call_with(function, {&*first}, number) == 1; });
            }
        }
    }
}

// A value has one holder: it is taken over once, never from within another, and never by what it holds itself.
TEST(Functions, AValueIsTakenOverOnce) {
    for (const Kept &kept : pool()) {
        SCOPED_TRACE("type " + std::to_string(kept.type) + ": " + hex(kept.octets));
        const Value list(24, kovra_asn1_list_new()), other(24, kovra_asn1_list_new());
        const Handle value = decode(kept.type, kept.octets).value.release();
        ASSERT_EQ(kovra_asn1_list_put(list.get(), value), 1);
        EXPECT_EQ(kovra_asn1_list_put(list.get(), value), 0);
        EXPECT_EQ(kovra_asn1_list_put(other.get(), value), 0);
        EXPECT_EQ(kovra_asn1_list_put(value, list.get()), 0);
        EXPECT_EQ(kovra_asn1_list_put(list.get(), list.get()), 0);
        Handle part = nullptr;
        if (kovra_asn1_list_get(value, 0, &part) == 1) {
            EXPECT_EQ(kovra_asn1_list_put(other.get(), part), 0);
            EXPECT_EQ(kovra_asn1_list_put(part, list.get()), 0);
        }
        const core::Value *record = record_of(value);
        if (record->kind == core::Kind::structure)
            for (uint8_t i = 0; i < static_cast<const core::Structure *>(record)->shape->count; ++i) {
                EXPECT_EQ(kovra_asn1_list_put(other.get(), static_cast<const core::Structure *>(record)->slot(i)), 0);
            }
        kovra_asn1_value_free(kept.type, value); // not the caller's any more
        EXPECT_EQ(kovra_asn1_list_getsize(list.get()), 1);
        EXPECT_EQ(kovra_asn1_list_getsize(other.get()), 0);
    }
}

// No type encodes, measures or copies a value of another, and each says so.
TEST(Functions, AValueOfAnotherKindIsNotEncoded) {
    for (uint32_t type = 0; type < KOVRA_ASN1_TYPE_COUNT; ++type) {
        for (const Kept &kept : pool()) {
            const Handle value = kept.value.get();
            if (core::holds(core::row(type), record_of(value)) || core::row(type).operations->refuses_whole)
                continue;
            SCOPED_TRACE("type " + std::to_string(type) + ", value of type " + std::to_string(kept.type));
            EXPECT_EQ(encode(type, value).codes.size(), 1u);
            EXPECT_EQ(encode_content(type, value, 1).codes.size(), 1u);
            EXPECT_EQ(Blob(kovra_asn1_mem_encode(type, value)), nullptr);
            EXPECT_FALSE(Value(23, kovra_asn1_objecttoany(type, value)));
            EXPECT_EQ(kovra_asn1_content_length(type, value), -2);
            EXPECT_EQ(kovra_asn1_length(type, value), -2);
            const Errors ctx(kovra_err_ctx_new());
            EXPECT_FALSE(Value(type, kovra_asn1_dupobject(type, value, ctx.get())));
            EXPECT_EQ(kovra_err_ctx_getcount(ctx.get()), 2);
        }
        if (HasFailure())
            break;
    }
}

} // namespace
} // namespace kovra::test
