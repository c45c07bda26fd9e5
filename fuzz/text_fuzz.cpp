// Object identifiers, times, characters and numbers: each way of writing them is tried on the input.
#include <limits>

#include "fuzz/fuzzing.hpp"
#include "fuzz/memory.hpp"

namespace kovra::fuzz {

namespace {

// Content octets of a primitive value.
Value decode_content(uint32_t type, const Exact &octets) {
    const Stream stream(kovra_stream_new_romem(octets.data(), octets.length(), 0, nullptr));
    Value value(type, nullptr);
    kovra_asn1_decode_content(stream.get(), type, value.place(), KOVRA_ASN1_PRIMITIVE, octets.length(), nullptr,
                              nullptr);
    return value;
}

void check_oid(const Exact &octets) {
    const std::string text(octets.view());
    const struct {
        uint32_t type;
        kovra_asn1_value *(*make)(const char *text) noexcept;
        const char *(*get)(const kovra_asn1_value *oid) noexcept;
    } kinds[] = {
        {KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER, kovra_asn1_oid_new, kovra_asn1_oid_getstring},
        {KOVRA_ASN1_TYPE_RELATIVE_OID, kovra_asn1_relative_oid_new, kovra_asn1_relative_oid_getstring},
    };
    for (const auto &kind : kinds) {
        const Value made(kind.type, kind.make(text.c_str()));
        if (made.get() != nullptr) {
            const Value again(kind.type, kind.make(kind.get(made.get())));
            check(again.get() != nullptr && encode(kind.type, again.get()) == encode(kind.type, made.get()),
                  "the text of an object identifier makes the same one");
            const Value copy(kind.type, kovra_asn1_dupobject(kind.type, made.get(), nullptr));
            check(copy.get() != nullptr && encode(kind.type, copy.get()) == encode(kind.type, made.get()),
                  "an object identifier that was made can be decoded");
        }
        const Value read = decode_content(kind.type, octets);
        if (read.get() == nullptr)
            continue;
        const Value written(kind.type, kind.make(kind.get(read.get())));
        const bool is_finished = (octets.data()[octets.size() - 1] & 0x80) == 0;
        if (written.get() != nullptr && is_finished)
            check(encode(kind.type, written.get()) == encode(kind.type, read.get()),
                  "the text of what was decoded makes the same");
    }
}

// Fields, a companion's time and a value are one moment. A second of 60 that was none is made and not read again.
void check_moment(const kovra_time *time) {
    if (kovra_time_getsecond(time) == 60 && kovra_time_isleapsecond(time) == 0)
        return;
    for (const uint32_t flags : {0x00U, 0x01U, 0x02U, 0x10U, 0x11U, 0x12U}) {
        const Value value(KOVRA_ASN1_TYPE_TIME, kovra_asn1_time_newutctime(time, flags));
        if (value.get() == nullptr)
            continue;
        const Value copy(KOVRA_ASN1_TYPE_TIME, kovra_asn1_dupobject(KOVRA_ASN1_TYPE_TIME, value.get(), nullptr));
        check(copy.get() != nullptr, "a time that was made can be decoded");
        const Time again(kovra_asn1_time_getutctime(copy.get()));
        const Time first(kovra_asn1_time_getutctime(value.get()));
        int32_t order = -1;
        // UTCTime has no place for a second of 60: what was made knows it, what was read does not.
        const bool is_leap = kovra_time_getsecond(time) == 60;
        check(kovra_time_compare(first.get(), again.get(), &order) == 1 &&
                  (order == 0 || (is_leap && kovra_time_getsecond(again.get()) == 59)),
              "and is the same moment");
        if (flags == 0x11 && !is_leap)
            check(kovra_time_compare(time, again.get(), &order) == 1 && order == 0, "GeneralizedTime keeps all");
    }
    int64_t seconds = 0;
    if (kovra_time_tounix(time, &seconds) == 1 && kovra_time_getsecond(time) < 60) {
        const Time again(kovra_time_newunix(seconds, kovra_time_getns(time)));
        int32_t order = -1;
        check(kovra_time_compare(time, again.get(), &order) == 1 && order == 0, "seconds since 1970 come back");
    }
}

void check_times(const Exact &octets) {
    for (const uint32_t type : {uint32_t{KOVRA_ASN1_TYPE_UTC_TIME}, uint32_t{KOVRA_ASN1_TYPE_GENERALIZED_TIME}}) {
        const Value value = decode_content(type, octets);
        if (value.get() == nullptr)
            continue;
        check(encode(type, value.get()).substr(2 + (octets.size() > 127 ? 1 : 0) + (octets.size() > 255 ? 1 : 0)) ==
                  octets.view(),
              "a time is written as it was read");
        const Time time(kovra_asn1_time_getutctime(value.get()));
        check(time != nullptr, "a time that was read is a moment");
        check_moment(time.get());
    }
    Draw draw(reinterpret_cast<const uint8_t *>(octets.data()), octets.size());
    int32_t fields[7];
    for (int32_t &field : fields)
        field = static_cast<int32_t>(draw.number(2)) - 100;
    fields[6] = static_cast<int32_t>(draw.number(4));
    const Time time(kovra_time_newutctime(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], fields[6]));
    const Value value(KOVRA_ASN1_TYPE_TIME,
                      kovra_asn1_time_new(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5], fields[6]));
    check((time != nullptr) == (value.get() != nullptr), "fields are a time for both or for none");
    if (time != nullptr)
        check_moment(time.get());
    const Time since(kovra_time_newunix(static_cast<int64_t>(draw.number(8)), fields[6]));
    if (since == nullptr)
        return;
    check_moment(since.get());
    const auto amount = static_cast<int32_t>(draw.number(4));
    const bool is_days = draw.octet() % 2 != 0;
    const auto add = is_days ? kovra_time_addday : kovra_time_addminute;
    const Time later(kovra_time_dup(since.get()));
    if (amount == std::numeric_limits<int32_t>::min() || add(later.get(), amount) != 1)
        return;
    int64_t seconds = 0, later_seconds = 0;
    check(kovra_time_tounix(since.get(), &seconds) == 1 && kovra_time_tounix(later.get(), &later_seconds) == 1 &&
              later_seconds - seconds == int64_t{amount} * (is_days ? 86400 : 60),
          "adding adds");
    int32_t order = -1;
    check(add(later.get(), -amount) == 1 && kovra_time_compare(since.get(), later.get(), &order) == 1 && order == 0,
          "taking away what was added");
}

void check_characters(const Exact &octets) {
    struct Form {
        kovra_ustring *(*make)(const void *octets, int32_t length) noexcept;
        kovra_data_blob *(*get)(const kovra_ustring *text) noexcept;
    };
    constexpr Form forms[] = {{kovra_ustring_newutf8, kovra_ustring_toutf8},
                              {kovra_ustring_newutf16be, kovra_ustring_toutf16be},
                              {kovra_ustring_newutf32be, kovra_ustring_toutf32be},
                              {kovra_ustring_newbmp, kovra_ustring_tobmp}};
    for (const Form &form : forms) {
        const Text text(form.make(octets.data(), octets.length()));
        if (text == nullptr)
            continue;
        check(text_of(Blob(form.get(text.get())).get()) == octets.view(), "text has one form");
        for (const Form &other : forms) {
            const Blob blob(other.get(text.get()));
            if (blob == nullptr) {
                check(other.get == kovra_ustring_tobmp, "only BMPString cannot hold every character");
                continue;
            }
            const Text again(other.make(kovra_data_blob_getdata(blob.get()), kovra_data_blob_getlength(blob.get())));
            check(again != nullptr && text_of(Blob(form.get(again.get())).get()) == octets.view(),
                  "text comes back from every form");
        }
    }
}

void check_number(const kovra_biginteger *number) {
    const Memory<char> decimal(kovra_biginteger_todecimal(number));
    const Memory<char> hexadecimal(kovra_biginteger_tohex(number));
    const BigInteger from_decimal(kovra_biginteger_newdecimal(decimal.get()));
    const BigInteger from_hexadecimal(kovra_biginteger_newhex(hexadecimal.get()));
    for (const auto *again : {from_decimal.get(), from_hexadecimal.get()}) {
        int32_t order = -2;
        check(kovra_biginteger_compare(number, again, &order) == 1 && order == 0, "a number's text is that number");
    }
    const Value value(KOVRA_ASN1_TYPE_INTEGER, kovra_asn1_integer_newbigint(number));
    const BigInteger from_value(kovra_asn1_integer_getbigintger(value.get()));
    int32_t order = -2;
    check(kovra_biginteger_compare(number, from_value.get(), &order) == 1 && order == 0, "and so is its INTEGER");
    int32_t small = 0;
    if (kovra_asn1_integer_getlong(value.get(), &small) == 1)
        check(std::to_string(small) == decimal.get(), "a small number is what its text says");
}

void check_numbers(const Exact &octets) {
    const std::string text(octets.view());
    for (const auto make : {kovra_biginteger_newdecimal, kovra_biginteger_newhex}) {
        const BigInteger number(make(text.c_str()));
        if (number != nullptr)
            check_number(number.get());
    }
    if (octets.size() == 0)
        return;
    const BigInteger number(kovra_biginteger_newdata(octets.data(), octets.length()));
    check_number(number.get());
    const Value value = decode_content(KOVRA_ASN1_TYPE_INTEGER, octets);
    check(value.get() != nullptr &&
              text_of(Blob(kovra_biginteger_getdata(BigInteger(kovra_asn1_integer_getbigintger(value.get())).get()))
                          .get()) == octets.view(),
          "an INTEGER's octets are kept");
    const Value magnitude(KOVRA_ASN1_TYPE_INTEGER, kovra_asn1_unsigned_integer_new(octets.data(), octets.length()));
    const BigInteger positive(kovra_asn1_integer_getbigintger(magnitude.get()));
    check_number(positive.get());
    const BigInteger padded(kovra_biginteger_newdata((std::string(1, '\0') + text).data(), octets.length() + 1));
    int32_t order = -2;
    check(kovra_biginteger_compare(positive.get(), padded.get(), &order) == 1 && order == 0, "a magnitude is positive");
}

void check_bits(const Exact &octets) {
    if (octets.size() == 0)
        return;
    const int32_t unused = octets.data()[0] & 7;
    const BitSet set(kovra_bitset_new(unused, octets.data(), octets.length()));
    const Value value(KOVRA_ASN1_TYPE_BIT_STRING, kovra_asn1_bitstring_newbitset(set.get()));
    const BitSet again(kovra_asn1_bitstring_getbitset(value.get()));
    check(kovra_bitset_getsize(again.get()) == octets.length() * 8 - unused, "a set keeps its size");
    for (int32_t bit = 0; bit < kovra_bitset_getsize(again.get()); ++bit) {
        const int32_t expected = octets.data()[bit / 8] >> (7 - bit % 8) & 1;
        check(kovra_bitset_test(set.get(), bit) == expected && kovra_bitset_test(again.get(), bit) == expected &&
                  kovra_asn1_bitstring_getbit(value.get(), bit) == expected,
              "a set keeps its bits");
    }
}

} // namespace

} // namespace kovra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    using namespace kovra::fuzz;
    begin_memory(int64_t{1} << 30);
    const Exact octets({reinterpret_cast<const char *>(data), size});
    check_oid(octets);
    check_times(octets);
    check_characters(octets);
    check_numbers(octets);
    check_bits(octets);
    end_memory();
    return 0;
}
