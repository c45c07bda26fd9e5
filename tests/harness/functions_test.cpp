// Every exported function that takes a value, with values of every kind.
#include <algorithm>
#include <map>

#include "core/structure.hpp"
#include "tests/failing_memory.hpp"
#include "tests/harness/functions.hpp"

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
        SCOPED_TRACE(function.name);
        const std::vector<Identity> &taken = kinds_of(function);
        if (taken.size() > 1)
            several[function.name] = taken.size();
        else
            EXPECT_TRUE(taken.size() == 1 || releases(function)) << "nothing is right for it";
    }
    EXPECT_EQ(several, kinds_taken());
    EXPECT_EQ(encodings(), before);
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
            const uint32_t number = static_cast<const core::Structure *>(row.shape)->components[i].copied_as->number;
            components[type].push_back({number, values[i].octets, decode(number, values[i].octets).value});
        }
    }
    size_t understood = 0;
    for (const Function &function : functions()) {
        SCOPED_TRACE(function.name);
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
            const auto *shape = static_cast<const core::Structure *>(core::row(type).shape);
            std::vector<const Kept *> right;
            for (const Kept &kept : values)
                right.push_back(&kept);
            bool is_made = false;
            call_with(function, right, 0, [&](const Call &call) {
                is_made = call.made[0] != nullptr && is_free(call.made[0]) &&
                          identity(call.made[0]) == Identity(core::Kind::record, shape->shape());
            });
            if (!is_made)
                continue;
            ++understood;
            for (size_t place = 0; place < function.values(); ++place) {
                for (const Kept &kept : pool()) {
                    std::vector<const Kept *> changed = right;
                    changed[place] = &kept;
                    call_with(function, changed, 0, [&](const Call &call) {
                        const auto *made = static_cast<const core::Record *>(record_of(call.made[0]));
                        EXPECT_TRUE(made == nullptr || made->slot(static_cast<uint8_t>(place)) == nullptr ||
                                    core::holds(*shape->components[place].copied_as, record_of(kept.value.get())))
                            << "place " << place << " takes a value of type " << kept.type;
                    });
                }
            }
            break;
        }
    }
    RecordProperty("understood", static_cast<int>(understood));
    EXPECT_GT(understood, 100u);
    EXPECT_EQ(encodings(), before);
}

} // namespace
} // namespace kovra::test
