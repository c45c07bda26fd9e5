// The JSON description, both ways: the first octet says whether the others are an encoding or a text.
#include "fuzz/fuzzing.hpp"
#include "fuzz/memory.hpp"

namespace kovra::fuzz {

namespace {

std::string print(const kovra_json *json, int32_t indent) {
    int64_t length = 0;
    const Memory<char> text(kovra_json_print(json, indent, &length));
    check(text != nullptr, "a JSON value can be printed");
    return {text.get(), static_cast<size_t>(length)};
}

Json parse(std::string_view text) {
    const Exact exact(text);
    int64_t offset = -1;
    Json json(kovra_json_parse(exact.data(), static_cast<int64_t>(exact.size()), &offset));
    check(json != nullptr || (offset >= 0 && offset <= static_cast<int64_t>(exact.size())),
          "what does not fit stands in the text");
    return json;
}

Json describe(std::string_view octets) {
    const Exact exact(octets);
    return Json(kovra_asn1_tojson(exact.data(), exact.length()));
}

// What is printed is parsed, and printed so again.
void check_print(const kovra_json *json) {
    for (const int32_t indent : {0, 3}) {
        const std::string text = print(json, indent);
        const Json again = parse(text);
        check(again != nullptr, "what is printed can be parsed");
        check(print(again.get(), indent) == text, "what is printed is printed so again");
    }
}

// Some of what can be described cannot be made of a description: local times, seconds of 60, and object identifiers
// without a finished arc or with the largest one.
bool may_be_refused(const kovra_json *json) {
    const std::string text = print(json, 0);
    for (const char *part : {R"("utc":false)", R"("second":60)", R"("type":"OID","value":"")", "18446744073709551615"})
        if (text.find(part) != std::string::npos)
            return true;
    return false;
}

// What a description is encoded to has a description that is encoded so.
void check_description(const kovra_json *json) {
    const Blob blob(kovra_asn1_encodejson(json));
    const Json again = blob != nullptr ? describe(text_of(blob.get())) : nullptr;
    if (again == nullptr) {
        check(may_be_refused(json), "a description can be encoded, and that described");
        return;
    }
    // Bits without a meaning do not come back.
    const Blob same(kovra_asn1_encodejson(again.get()));
    check(same != nullptr && text_of(same.get()) == text_of(blob.get()), "and its description is encoded to the same");
}

void run(Draw input) {
    const bool is_text = input.octet() % 2 != 0;
    const std::string_view rest = input.rest();
    if (!is_text) {
        const Json json = describe(rest);
        if (json == nullptr)
            return;
        check_print(json.get());
        check_description(json.get());
        return;
    }
    const Json json = parse(rest);
    if (json == nullptr)
        return;
    check_print(json.get());
    const Blob blob(kovra_asn1_encodejson(json.get()));
    if (blob == nullptr)
        return;
    // A ready-made element may be anything.
    const Json described = describe(text_of(blob.get()));
    if (described != nullptr)
        check_description(described.get());
}

} // namespace

size_t elements_begin(const uint8_t *data, size_t size) {
    return size > 0 && data[0] % 2 == 0 ? 1 : size;
}

} // namespace kovra::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    kovra::fuzz::begin_memory(int64_t{1} << 30);
    kovra::fuzz::run({data, size});
    kovra::fuzz::end_memory();
    return 0;
}
