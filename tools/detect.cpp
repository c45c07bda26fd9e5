#include "detect.hpp"

#include <algorithm>
#include <iterator>

#include "element.hpp"
#include "kovra/asn1.h"
#include "tool_handles.hpp"

namespace kovra::tool {

namespace {

// What an element of a type looks like: a sequence of marks for elements, in parentheses those inside the one before:
//   S SEQUENCE, T SET, I INTEGER, B BIT STRING, O OCTET STRING, o OBJECT IDENTIFIER, E ENUMERATED, t a time,
//   0 to 9 constructed and a to d primitive context tags, . anything, * whatever follows at this level,
//   ? in front of what may be absent.
struct Pattern {
    uint32_t type;
    std::string_view marks;
    bool is_certain = false; // nothing else looks like this
};

// From the most specific to the least: the first type that takes an element is it. Two or three INTEGERs have no
// pattern, since they may be an RSA public key, a signature or parameters.
constexpr Pattern patterns[] = {
    {KOVRA_ASN1_TYPE_CERTIFICATE, "S(S(?0(I)ISSS(tt)SS(SB)*)S(o*)B)", true},
    {KOVRA_ASN1_TYPE_CERTIFICATE_LIST, "S(S(?ISSt*)S(o*)B)", true},
    {KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST, "S(S(ISS(SB)0)S(o*)B)", true},
    {KOVRA_ASN1_TYPE_CONTENT_INFO, "S(o0(*))"},
    {KOVRA_ASN1_TYPE_PFX, "S(IS(o0(*))?S)", true},
    {KOVRA_ASN1_TYPE_PRIVATE_KEY_INFO, "S(IS(o*)O*)", true},
    {KOVRA_ASN1_TYPE_RSA_PRIVATE_KEY, "S(IIIIIIIII*)", true},
    {KOVRA_ASN1_TYPE_EC_PRIVATE_KEY, "S(IO?0(*)?1(B))", true},
    // A key of DSA has no type of its own.
    {KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY, "S(IIIIII)"},
    {KOVRA_ASN1_TYPE_ENCRYPTED_PRIVATE_KEY_INFO, "S(S(oS*)O)"},
    {KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO, "S(S(o*)B)"},
    {KOVRA_ASN1_TYPE_CERTIFICATE_PAIR, "S(0(S(S(*)SB))?1(S(S(*)SB)))"},
    {KOVRA_ASN1_TYPE_CERTIFICATE_PAIR, "S(1(S(S(*)SB)))"},
    {KOVRA_ASN1_TYPE_OCSP_RESPONSE, "S(E?0(S(oO)))"},
    {KOVRA_ASN1_TYPE_OCSP_BASIC_RESPONSE, "S(S(?0(I)1(S)tS*)S(o*)B*)"},
    {KOVRA_ASN1_TYPE_OCSP_BASIC_RESPONSE, "S(S(?0(I)2(O)tS*)S(o*)B*)"},
    {KOVRA_ASN1_TYPE_OCSP_REQUEST, "S(S(?0(I)?1(.)S(S(S(S(o*)OOI)*)*)*)?0(S(S(o*)B*)))"},
    {KOVRA_ASN1_TYPE_TIME_STAMP_REQ, "S(IS(S(o*)O)*)"},
    {KOVRA_ASN1_TYPE_TIME_STAMP_RESP, "S(S(I?S?B)?S(o0(*)))"},
    {KOVRA_ASN1_TYPE_TST_INFO, "S(IoS(S(o*)O)It*)"},
    {KOVRA_ASN1_TYPE_PKCS7_SIGNED_DATA, "S(IT(*)S(o?0(*))?0(*)?1(*)T(*))"},
    {KOVRA_ASN1_TYPE_SIGNER_INFO, "S(IS(S(*)I)S(o*)?0(*)S(o*)O?1(*))"},
    {KOVRA_ASN1_TYPE_ENVELOPED_DATA, "S(I?0(*)T(*)S(oS(o*)*)?1(*))"},
    {KOVRA_ASN1_TYPE_ENCRYPTED_DATA, "S(IS(oS(o*)*)?1(*))"},
    {KOVRA_ASN1_TYPE_AUTHENTICATED_DATA, "S(I?0(*)T(*)S(o*)?1(o*)S(o*)*)"},
    {KOVRA_ASN1_TYPE_DIGESTED_DATA, "S(IS(o*)S(o?0(*))O)"},
    // Contents of a store, in data first or encrypted first; bags.
    {KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE, "S(S(o0(O))*)"},
    {KOVRA_ASN1_TYPE_AUTHENTICATED_SAFE, "S(S(o0(S(IS(oS*)*)))*)"},
    {KOVRA_ASN1_TYPE_SAFE_CONTENTS, "S(S(o0(S(*))?T(*))*)"},
    {KOVRA_ASN1_TYPE_CERT_STORE, "S(S(S(S(?0(I)ISSS*)S(o*)B)?S(S(I.)*))*)"},
    {KOVRA_ASN1_TYPE_CERT_WITH_ATTRIBUTES, "S(S(S(?0(I)ISSS*)S(o*)B)S(S(I.)*))"},
    {KOVRA_ASN1_TYPE_SM2_CIPHER, "S(IIOO)"},
    {KOVRA_ASN1_TYPE_OCSP_CERT_ID, "S(S(o*)OOI)"},
    {KOVRA_ASN1_TYPE_TBS_CERTIFICATE, "S(?0(I)ISSS(tt)SS(SB)*)"},
    {KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST_INFO, "S(ISS(SB)0)"},
    {KOVRA_ASN1_TYPE_ECPK_PARAMETERS, "S(IS(o*)S(OO*)OI*)"},
    {KOVRA_ASN1_TYPE_DIGEST_INFO, "S(S(o*)O)"},
    {KOVRA_ASN1_TYPE_PKCS10_ATTRIBUTE, "S(oT(*))"},
    {KOVRA_ASN1_TYPE_NAME, "S(T(S(o.))*)"},
    {KOVRA_ASN1_TYPE_EXTENSIONS, "S(S(o*)*)"},
};

struct Label {
    std::string_view label;
    uint32_t type;
};
constexpr Label labels[] = {
    {"CERTIFICATE", KOVRA_ASN1_TYPE_CERTIFICATE},
    {"X509 CERTIFICATE", KOVRA_ASN1_TYPE_CERTIFICATE},
    {"X509 CRL", KOVRA_ASN1_TYPE_CERTIFICATE_LIST},
    {"CRL", KOVRA_ASN1_TYPE_CERTIFICATE_LIST},
    {"CERTIFICATE REQUEST", KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST},
    {"NEW CERTIFICATE REQUEST", KOVRA_ASN1_TYPE_CERTIFICATION_REQUEST},
    {"PKCS7", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"CMS", KOVRA_ASN1_TYPE_CONTENT_INFO},
    {"PUBLIC KEY", KOVRA_ASN1_TYPE_SUBJECT_PUBLIC_KEY_INFO},
    {"RSA PUBLIC KEY", KOVRA_ASN1_TYPE_RSA_PUBLIC_KEY},
    {"PRIVATE KEY", KOVRA_ASN1_TYPE_PRIVATE_KEY_INFO},
    {"ENCRYPTED PRIVATE KEY", KOVRA_ASN1_TYPE_ENCRYPTED_PRIVATE_KEY_INFO},
    {"RSA PRIVATE KEY", KOVRA_ASN1_TYPE_RSA_PRIVATE_KEY},
    {"EC PRIVATE KEY", KOVRA_ASN1_TYPE_EC_PRIVATE_KEY},
    {"DSA PRIVATE KEY", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY},
    {"SM2 PRIVATE KEY", KOVRA_ASN1_TYPE_EC_PRIVATE_KEY},
    {"EC PARAMETERS", KOVRA_ASN1_TYPE_ECPK_PARAMETERS},
    {"SM2 PARAMETERS", KOVRA_ASN1_TYPE_ECPK_PARAMETERS},
    {"DSA PARAMETERS", KOVRA_ASN1_TYPE_DSS_PARMS},
    {"DH PARAMETERS", KOVRA_ASN1_TYPE_DH_PARAMETER},
};

bool has_mark(char mark, const Header &header) {
    switch (mark) {
    case '.':
        return true;
    case 'S':
        return header.lead == 0x30;
    case 'T':
        return header.lead == 0x31;
    case 'I':
        return header.lead == 0x02;
    case 'B':
        return (header.lead & ~0x20) == 0x03;
    case 'O':
        return (header.lead & ~0x20) == 0x04;
    case 'o':
        return header.lead == 0x06;
    case 'E':
        return header.lead == 0x0A;
    case 't':
        return (header.lead & ~0x20) == 0x17 || (header.lead & ~0x20) == 0x18;
    default:
        return mark >= 'a' ? header.lead == 0x80 + mark - 'a' : header.lead == 0xA0 + mark - '0';
    }
}

// Compares an element with a pattern, mark by mark. Recurses as deep as the pattern nests, which is a few levels.
class Matcher {
public:
    Matcher(const Item &item, std::string_view marks) : octets_(item.octets), end_(item.end), marks_(marks) {}

    // Does the element fit, or, where its octets end early, do those that are there? At least `least` elements have to
    // be among them.
    bool matches(size_t begin, size_t least) {
        at_ = begin;
        Header header;
        if (!is_there(nowhere, header) || !has_mark(marks_[0], header) || !element(header, nowhere))
            return false;
        return seen_ >= least && (is_cut_ || (next_ == marks_.size() && at_ == end_));
    }

private:
    // Matches the elements up to `end` with the marks up to the closing parenthesis.
    // NOLINTNEXTLINE(misc-no-recursion)
    bool level(size_t end) {
        while (next_ < marks_.size() && marks_[next_] != ')') {
            if (marks_[next_] == '*') {
                ++next_;
                at_ = end;
                return true;
            }
            const bool is_optional = marks_[next_] == '?';
            if (is_optional)
                ++next_;
            Header header;
            if (is_there(end, header) && has_mark(marks_[next_], header)) {
                if (!element(header, end))
                    return false;
                if (is_cut_)
                    return true;
            } else if (is_cut_) {
                return true;
            } else if (is_optional) {
                skip();
            } else {
                return false;
            }
        }
        return at_ == end;
    }

    bool is_there(size_t end, Header &header) {
        is_cut_ = end_ - at_ < 2 && end > at_;
        return at_ < end && !is_cut_ && read_clipped(header);
    }

    // Like read_header, with a length that may reach beyond the octets that there are.
    bool read_clipped(Header &header) {
        if (read_header(octets_, at_, end_, header))
            return true;
        // Six octets are the longest header here: one of identifier, a length of five.
        uint8_t head[6] = {};
        const size_t there = std::min<size_t>(sizeof head, end_ - at_);
        std::copy_n(octets_ + at_, there, head);
        const size_t count = head[1] > 0x80 ? head[1] & 0x7FU : 0;
        if (head[1] == 0x80 || count > 4 || (head[0] & 0x1F) == 0x1F)
            return false;
        header = {};
        header.lead = head[0];
        header.size = static_cast<uint32_t>(2 + count);
        header.length = head[1] < 0x80 ? head[1] : 0;
        for (size_t i = 0; i < count; ++i)
            header.length = header.length << 8 | head[2 + i];
        // No element is longer; where a size has 32 bits, its end would be none.
        return header.length <= INT32_MAX;
    }

    // NOLINTNEXTLINE(misc-no-recursion)
    bool element(const Header &header, size_t end) {
        ++seen_;
        ++next_;
        const size_t content = at_ + header.size;
        const size_t past = header.is_indefinite ? element_end(octets_, at_, end_, Tags::all) : content + header.length;
        const bool is_entered = next_ < marks_.size() && marks_[next_] == '(';
        if (past == nowhere || content > end_)
            return is_cut_ = true;
        if (past > end)
            return false;
        if (is_entered) {
            ++next_;
            at_ = content;
            if (!level(header.is_indefinite ? past - 2 : past))
                return false;
            if (is_cut_)
                return true;
            ++next_; // the closing parenthesis
        }
        at_ = past;
        is_cut_ = past > end_;
        return true;
    }

    // Passes over an optional mark and what is in parentheses behind it.
    void skip() {
        size_t open = 0;
        do {
            ++next_;
            open += next_ < marks_.size() && marks_[next_] == '(' ? 1 : 0;
            open -= marks_[next_ - 1] == ')' ? 1 : 0;
        } while (open != 0);
    }

    const uint8_t *octets_;
    size_t end_;
    std::string_view marks_;
    size_t next_ = 0; // mark
    size_t at_ = 0;
    size_t seen_ = 0;
    bool is_cut_ = false;
};

bool decode(const Item &item, uint32_t type, Detected &out) {
    const auto size = library_size(item.end - item.begin);
    out = {type, false, nullptr};
    const int32_t read = kovra_asn1_mem_decode(item.octets + item.begin, size, type, &out.value);
    out.is_good = read == size && size > 0;
    if (read >= 0 && !out.is_good) {
        kovra_asn1_value_free(type, out.value);
        out.value = nullptr;
    }
    return out.is_good;
}

} // namespace

Detected detect(const Item &item, const Options &options) {
    Detected result;
    if (options.type != KOVRA_ASN1_TYPE_COUNT) {
        decode(item, options.type, result);
        return result;
    }
    uint32_t promised = KOVRA_ASN1_TYPE_COUNT;
    const auto *label =
        std::find_if(std::begin(labels), std::end(labels), [&](const Label &row) { return row.label == item.label; });
    if (label != std::end(labels)) {
        if (decode(item, label->type, result))
            return result;
        promised = label->type;
    }
    const bool is_whole = element_end(item.octets, item.begin, item.end, Tags::all) == item.end;
    for (const Pattern &pattern : patterns) {
        constexpr size_t enough = 3;
        if (!Matcher(item, pattern.marks).matches(item.begin, is_whole ? 0 : enough))
            continue;
        if (is_whole && pattern.type != promised && decode(item, pattern.type, result))
            return result;
        if (pattern.is_certain && promised == KOVRA_ASN1_TYPE_COUNT)
            promised = pattern.type;
    }
    if (promised == KOVRA_ASN1_TYPE_COUNT)
        decode(item, KOVRA_ASN1_TYPE_ANY, result);
    else
        result = {promised, false, nullptr};
    return result;
}

Trouble explain(const Item &item, uint32_t type) {
    return explain({item.octets, item.begin, item.end, true}, {type});
}

} // namespace kovra::tool
