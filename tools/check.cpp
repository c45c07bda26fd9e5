// `check`: decode, encode again, compare.

#include <algorithm>
#include <iterator>

#include "detect.hpp"
#include "paths.hpp"
#include "progress.hpp"

namespace kovra::tool {

namespace {

// Types whose encoding comes back as it was, whatever its form. Of others only DER does.
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

// Does the value of the octets have these octets as its encoding?
bool is_stable(uint32_t type, const kovra_data_blob *encoding) {
    Value value(type);
    const int32_t length = kovra_data_blob_getlength(encoding);
    const uint8_t *octets = kovra_data_blob_getdata(encoding);
    if (length < 1 || kovra_asn1_mem_decode(octets, length, type, value.place()) != length)
        return false;
    const Blob again(kovra_asn1_mem_encode(type, value.get()));
    return again != nullptr && kovra_data_blob_getlength(again.get()) == length &&
           std::equal(octets, octets + length, kovra_data_blob_getdata(again.get()));
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
        const auto put = [this](std::string_view name, size_t number) {
            session_.out.put(name);
            session_.out.put(':');
            session_.out.fill(' ', 12 - name.size());
            session_.out.put_right(number, 8);
            session_.out.put('\n');
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
            return session_.report_file(file.path + ": " + failure);
        }
        Items items(std::move(octets));
        if (!file.is_named && items.is_other_text()) {
            ++skipped_;
            return;
        }
        Item item;
        const std::string name = harmless(file.path);
        while (items.next(item)) {
            check(item, name);
            progress_.step(done_ + std::min<uint64_t>(item.end, file.size), count_);
        }
    }

    void check(const Item &item, const std::string &file) {
        if (item.is_bad_armour)
            return report(malformed_, item, file, bad_armour());
        const Detected detected = detect(item, session_.options);
        if (!detected.is_good)
            return report(malformed_, item, file, explain(item, detected.type));
        const Blob again(kovra_asn1_mem_encode(detected.type, detected.value));
        const bool is_short = again == nullptr && kovra_asn1_length(detected.type, detected.value) > 0;
        kovra_asn1_value_free(detected.type, detected.value);
        if (is_short)
            return report(unreadable_, item, file, {item.begin, {{KOVRA_ERR_NO_MEMORY, "memory is short", ""}}});
        const uint8_t *begin = item.octets + item.begin;
        const uint8_t *end = item.octets + item.end;
        const uint8_t *other = kovra_data_blob_getdata(again.get());
        const uint8_t *other_end = other + kovra_data_blob_getlength(again.get());
        const uint8_t *difference = std::mismatch(begin, end, other, other_end).first;
        if (difference == end && other_end - other == end - begin)
            ++identical_;
        else if (!keeps_encoding(detected.type) && is_stable(detected.type, again.get()))
            ++reencoded_;
        else
            report(different_, item, file,
                   {static_cast<size_t>(difference - item.octets), {{0, "encoded again it differs", ""}}});
    }

    void report(size_t &count, const Item &item, const std::string &file, const Trouble &trouble) {
        ++count;
        progress_.erase();
        session_.report(file + "[" + std::to_string(item.number) + "]", trouble);
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
    Check run(session,
              find_files(session.options.files, [&](const std::string &message) { session.report_file(message); }));
    run.run();
    if (!session.options.is_quiet)
        run.put_summary();
}

} // namespace kovra::tool
