// `check`: decode, encode again, compare.

#include <algorithm>
#include <iterator>

#include "detect.hpp"
#include "inner.hpp"
#include "paths.hpp"
#include "progress.hpp"
#include "show_fields.hpp"
#include "type_names.hpp"

namespace kovra::tool {

namespace {

// Types that keep the octets they were decoded from and write these again, BER or DER. Others write DER.
bool keeps_encoding(uint32_t type) {
    constexpr uint32_t types[] = {KOVRA_ASN1_TYPE_ANY,
                                  KOVRA_ASN1_TYPE_ATTRIBUTE_TYPE_AND_DISTINGUISHED_VALUE,
                                  KOVRA_ASN1_TYPE_ATTRIBUTE_TYPE_AND_VALUE,
                                  KOVRA_ASN1_TYPE_NAME,
                                  KOVRA_ASN1_TYPE_CERTIFICATE,
                                  KOVRA_ASN1_TYPE_CERTIFICATE_LIST,
                                  KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST};
    return std::find(std::begin(types), std::end(types), type) != std::end(types);
}

// Is the encoding what decoding and encoding it again gives?
bool is_stable(uint32_t type, std::string_view encoding) {
    Value value(type);
    return read_octets(encoding, type, value) && encoding_of(type, value.get()) == encoding;
}

// From the best to the worst: an element has the worst outcome among its own and those of the structures in it.
enum class Outcome { identical, reencoded, malformed, different };

// Compares the encoding of a value with the octets it was decoded from; `difference` is the first octet that differs.
Outcome compare(uint32_t type, const kovra_asn1_value *value, std::string_view octets, size_t &difference) {
    const std::string again = encoding_of(type, value);
    difference = static_cast<size_t>(std::mismatch(octets.begin(), octets.end(), again.begin(), again.end()).first -
                                     octets.begin());
    if (again == octets)
        return Outcome::identical;
    return !keeps_encoding(type) && is_stable(type, again) ? Outcome::reencoded : Outcome::different;
}

// Has the value a length, but memory is too short for its encoding?
bool lacks_memory(uint32_t type, const kovra_asn1_value *value) {
    return kovra_asn1_length(type, value) > 0 && encoding_of(type, value).empty();
}

class Check {
public:
    Check(Session &session, std::vector<FoundFile> files)
        : session_(session), files_(std::move(files)), progress_(total(files_), !session.options.is_quiet) {}

    void run() {
        for (const FoundFile &file : files_) {
            check(file);
            done_ += file.size;
            ++count_;
            progress_.step(done_, count_);
        }
        progress_.erase();
    }

    void put_summary() {
        const auto put = [this](Harmless name, size_t number) {
            session_.out.put(name);
            session_.out.put(":");
            session_.out.put_blanks(12 - name.size());
            session_.out.put_right(number, 8);
            session_.out.put("\n");
        };
        put("files", count_);
        put("  skipped", skipped_);
        put("  unreadable", unreadable_);
        put("elements", identical_ + reencoded_ + malformed_ + different_);
        put("good", identical_ + reencoded_);
        put("  identical", identical_);
        put("  reencoded", reencoded_);
        put("bad", malformed_ + different_);
        put("  malformed", malformed_);
        put("  different", different_);
    }

private:
    static uint64_t total(const std::vector<FoundFile> &files) {
        uint64_t sum = 0;
        for (const FoundFile &file : files)
            sum += file.size;
        return sum;
    }

    void check(const FoundFile &file) {
        std::vector<uint8_t> octets;
        if (const std::string failure = read_file(file.path, octets); !failure.empty()) {
            progress_.erase();
            ++unreadable_;
            return session_.report_file(file.path, failure);
        }
        Items items(std::move(octets));
        if (!file.is_named && items.is_other_text()) {
            ++skipped_;
            return;
        }
        Item item;
        const Message name{Outside(file.path)};
        while (items.next(item)) {
            check(item, name);
            progress_.step(done_ + std::min<uint64_t>(item.end, file.size), count_);
        }
    }

    void check(const Item &item, const Message &file) {
        const Message place = Place{file, item.number}.text();
        if (item.is_bad_armour)
            return count(report(Outcome::malformed, place, bad_armour()));
        const Detected detected = detect(item, session_.options);
        if (!detected.is_good)
            return count(report(Outcome::malformed, place, explain(item, detected.type)));
        const std::string_view octets(reinterpret_cast<const char *>(item.octets) + item.begin, item.end - item.begin);
        size_t difference = 0;
        Outcome outcome = compare(detected.type, detected.value, octets, difference);
        if (outcome == Outcome::different && lacks_memory(detected.type, detected.value)) {
            kovra_asn1_value_free(detected.type, detected.value);
            progress_.erase();
            ++unreadable_;
            return session_.report(place, no_memory(item.begin));
        }
        if (outcome == Outcome::different)
            report(outcome, place, differs(item.begin + difference));
        else
            outcome = std::max(outcome, check_inner(detected.type, detected.value, {}, place, 0));
        count(outcome);
        kovra_asn1_value_free(detected.type, detected.value);
    }

    // Checks the structures that stand in a value as octets, those in these, and so on, up to a depth that no real
    // message has.
    Outcome check_inner(uint32_t type, kovra_asn1_value *value, const Inner &outer, const Message &place,
                        size_t level) {
        constexpr size_t deepest = 32;
        Outcome worst = Outcome::identical;
        if (level == deepest)
            return worst;
        for_each_inner(type, value, outer.type_of_data, [&](const Inner &inner) {
            if (!inner.rows.empty())
                worst = std::max(worst, check(inner, place, level));
        });
        return worst;
    }

    Outcome check(const Inner &inner, const Message &place, size_t level) {
        for (const OidRow &row : inner.rows) {
            Value value(row.type);
            if (!read_octets(inner.octets, row.type, value))
                continue;
            size_t difference = 0;
            const Outcome outcome = compare(row.type, value.get(), inner.octets, difference);
            if (outcome == Outcome::different)
                return report(outcome, within(place, row.type), differs(difference));
            return std::max(outcome, check_inner(row.type, value.get(), inner, place, level + 1));
        }
        const uint32_t type = inner.rows.front().type;
        const auto *octets = reinterpret_cast<const uint8_t *>(inner.octets.data());
        return report(Outcome::malformed, within(place, type), explain({octets, 0, inner.octets.size(), true}, {type}));
    }

    static Message within(const Message &place, uint32_t type) { return place + " " + type_name(type); }

    static Trouble differs(size_t octet) { return {octet, {{0, "encoded again it differs", ""}}}; }

    void count(Outcome outcome) {
        size_t *const counts[] = {&identical_, &reencoded_, &malformed_, &different_};
        ++*counts[static_cast<size_t>(outcome)];
    }

    Outcome report(Outcome outcome, const Message &place, const Trouble &trouble) {
        progress_.erase();
        session_.report(place, trouble);
        return outcome;
    }

    Session &session_;
    std::vector<FoundFile> files_;
    Progress progress_;
    uint64_t done_ = 0;
    size_t count_ = 0;
    size_t skipped_ = 0;
    size_t unreadable_ = 0;
    size_t identical_ = 0;
    size_t reencoded_ = 0;
    size_t malformed_ = 0;
    size_t different_ = 0;
};

} // namespace

void check(Session &session) {
    Check run(session, find_files(session.options.files, [&](std::string_view path, std::string_view reason) {
                  session.report_file(path, reason);
              }));
    run.run();
    if (!session.options.is_quiet)
        run.put_summary();
}

} // namespace kovra::tool
