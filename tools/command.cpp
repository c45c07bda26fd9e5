#include "command.hpp"

#include <algorithm>
#include <cstdio>

#include "kovra/asn1.h"
#include "kovra/util.h"
#include "tool_handles.hpp"

namespace kovra::tool {

namespace {

Message hexadecimal(int32_t code) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", static_cast<unsigned>(code));
    return Message(Outside(text));
}

Trouble::Cause incorrect_item() {
    return {0x1020a, "incorrect item", "kovra-asn1"};
}
Trouble::Cause octets_left() {
    return {0x1027f, "there is some bytes not decode", "kovra-asn1"};
}

} // namespace

Trouble explain(const Refusal &refusal, std::initializer_list<uint32_t> types) {
    const auto size = static_cast<int64_t>(refusal.limit - refusal.begin);
    Trouble trouble;
    for (const uint32_t type : types) {
        const Context context(kovra_err_ctx_new());
        const Stream stream(kovra_stream_new_romem(refusal.octets + refusal.begin, size, 0, nullptr));
        const uint8_t *unread = nullptr;
        int64_t left = 0;
        kovra_asn1_value *value = nullptr;
        if (kovra_asn1_decode(stream.get(), type, &value, nullptr, context.get()) == 1) {
            kovra_asn1_value_free(type, value);
            kovra_stream_peek(stream.get(), &unread, &left);
            if (left == 0 || !refusal.is_whole)
                continue;
            return {refusal.limit - static_cast<size_t>(left), {octets_left()}};
        }
        if (type != KOVRA_ASN1_TYPE_ANY)
            kovra_asn1_decode_puterr(context.get(), type, "kovra-asn1", 0);
        kovra_stream_peek(stream.get(), &unread, &left);
        trouble.octet = refusal.begin + static_cast<size_t>(size - left);
        const char *text = nullptr;
        const char *source = nullptr;
        int32_t code = 0;
        for (int32_t i = 0; kovra_err_ctx_getentry(context.get(), i, &source, nullptr, &code, &text) == 1; ++i)
            trouble.chain.push_back({code, text, source});
        if (!trouble.chain.empty())
            return trouble;
    }
    return {refusal.begin, {incorrect_item()}};
}

Trouble bad_armour() {
    return {0, {{KOVRA_ERR_STREAM_PEM, kovra_igetStreamError(KOVRA_ERR_STREAM_PEM), "UTIL_Coding"}}};
}

Trouble no_memory(size_t octet) {
    return {octet, {{KOVRA_ERR_NO_MEMORY, "memory is short", ""}}};
}

void Session::report(const Message &place, const Trouble &trouble) {
    out.flush();
    // Where memory is short, the input may be good: it does not count as malformed.
    const bool is_short = trouble.chain.front().code == KOVRA_ERR_NO_MEMORY;
    status_ = std::max(status_, is_short ? Status::io : Status::malformed);
    is_incomplete_ = is_incomplete_ || is_short;
    const Trouble::Cause &outermost = trouble.chain.back();
    Message text("kovra-asn1: ");
    text += place + ": octet " + decimal(origin_ + trouble.octet) + ": " + Outside(outermost.text);
    if (outermost.code != 0)
        text += Message(" (") + hexadecimal(outermost.code) + ")";
    text += "\n";
    if (!options.is_quiet && outermost.code != 0) {
        size_t width = 0;
        for (const Trouble::Cause &cause : trouble.chain)
            width = std::max(width, cause.text.size());
        for (const Trouble::Cause &cause : trouble.chain)
            text += Message("  ") + hexadecimal(cause.code) + " " + Outside(cause.text) +
                    blanks(width - cause.text.size() + 2) + Outside(cause.source) + "\n";
    }
    put_error(text);
}

void Session::report_file(std::string_view file, std::string_view reason) {
    out.flush();
    status_ = std::max(status_, Status::io);
    put_error(Message("kovra-asn1: ") + Outside(file) + ": " + Outside(reason) + "\n");
}

void Session::for_each_file(const std::function<void(std::vector<uint8_t> &&, const Message &)> &function) {
    for (const std::string &file : options.files) {
        std::vector<uint8_t> octets;
        if (out.is_over())
            return;
        if (const std::string failure = read_file(file, octets); !failure.empty())
            report_file(file, failure);
        else
            function(std::move(octets), Message(Outside(file)));
    }
}

void Session::for_each_item(const ForItem &function) {
    for (const std::string &file : options.files) {
        if (out.is_over())
            return;
        std::string failure;
        if (file == "-" && StandardInput::arrives_in_pieces()) {
            StandardInput input([this] { out.flush(); });
            for_each_of(Items(input), file, function);
            failure = input.failure();
        } else {
            std::vector<uint8_t> octets;
            failure = read_file(file, octets);
            if (failure.empty())
                for_each_of(Items(std::move(octets)), file, function);
        }
        if (!failure.empty())
            report_file(file, failure);
    }
}

void Session::for_each_of(Items items, const std::string &file, const ForItem &function) {
    Item item;
    Place place = {Message(Outside(file))};
    while (!out.is_over() && items.next(item)) {
        place.number = item.number;
        item.is_only = item.is_only && options.files.size() == 1;
        origin_ = item.origin;
        if (item.is_bad_armour)
            report(place.text(), bad_armour());
        else
            function(item, place);
    }
    origin_ = 0;
}

} // namespace kovra::tool
