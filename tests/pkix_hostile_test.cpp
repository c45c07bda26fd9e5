// Certificates, CRLs and requests that are cut, changed, or read where memory is short.
#include <array>

#include "tests/failing_memory.hpp"
#include "tests/pkix_testing.hpp"

namespace kovra::test {
namespace {

// Where an element begins, and how long its header and its content are.
struct Place {
    size_t begin, header, length;
};

// All elements, also those within octet strings whose content is an element.
void find_places(const std::string &data, size_t begin, size_t end, std::vector<Place> &places) {
    for (size_t at = begin; at < end;) {
        const std::string whole = elements(data.substr(at, end - at))[0];
        const size_t header = whole[1] == '\x82' ? 4 : whole[1] == '\x81' ? 3 : 2;
        places.push_back({at, header, whole.size() - header});
        const bool is_wrapper = whole[0] == '\x04' && whole.size() > 4 && whole[2] == '\x30' &&
                                static_cast<size_t>(whole[3]) + 4 == whole.size();
        if ((whole[0] & 0x20) != 0 || is_wrapper)
            find_places(data, at + header, at + whole.size(), places);
        at += whole.size();
    }
}

bool read_list(Handle list, bool (*read)(Handle)) {
    for (int32_t i = 0; i < kovra_asn1_list_getsize(list); ++i) {
        Handle element = nullptr;
        if (kovra_asn1_list_get(list, i, &element) != 1 || !read(element))
            return false;
    }
    return true;
}

bool can_write(uint32_t type, Handle value) {
    return Blob(kovra_asn1_mem_encode(type, value)) != nullptr;
}

bool read_extension(Handle extension) {
    const char *oid = kovra_asn1_oid_getstring(kovra_x509extension_getid(extension));
    if (oid == nullptr)
        return false;
    Handle out = nullptr;
    const uint32_t type = type_of_extension(oid);
    // Values of extensions may be anything.
    if (kovra_asn1_octetstring_getobject(kovra_x509extension_getvalue(extension), type, &out, nullptr) == 1) {
        const Value value(type, out);
        return can_write(type, out) || type == 3;
    }
    return !ScarceMemory::has_failed();
}

bool read_everything(const Kind &kind, Handle obj) {
    int32_t length = 0;
    bool done = can_write(kind.type, obj) && kind.get_signed_octets(obj, nullptr, &length) == 1 && length > 0;
    if (kind.type == 39)
        return done && can_write(32, kovra_x509pubkeycert_getissuer(obj)) &&
               can_write(34, kovra_x509pubkeycert_getvalidity(obj)) &&
               can_write(32, kovra_x509pubkeycert_getsubject(obj)) &&
               can_write(35, kovra_x509pubkeycert_getpubkey(obj)) &&
               read_list(kovra_x509pubkeycert_getexts(obj), read_extension);
    if (kind.type == 41)
        return done && can_write(32, kovra_x509crl_getissuer(obj)) && can_write(20, kovra_x509crl_getthisupdate(obj)) &&
               read_list(kovra_x509crl_getexts(obj), read_extension) &&
               read_list(kovra_x509crl_getrevcerts(obj), [](Handle entry) {
                   return can_write(92, entry) && read_list(kovra_x509revcertinfo_getexts(entry), read_extension);
               });
    return done && can_write(32, kovra_pkcs10certreq_getsubject(obj)) &&
           can_write(35, kovra_pkcs10certreq_getpubkey(obj)) &&
           read_list(kovra_pkcs10certreq_getattrs(obj), [](Handle attribute) { return can_write(43, attribute); });
}

TEST(PkixHostile, TruncationAtEveryOctet) {
    for (const Kind &kind : kinds) {
        for (const std::string &data : objects(kind)) {
            for (size_t end = 1; end < data.size(); ++end) {
                Codes codes;
                ASSERT_FALSE(load(kind, data.substr(0, end), &codes)) << end;
                ASSERT_EQ(codes.at(0), 0x10105) << end;
                ASSERT_EQ(codes.back(), 0x10236) << end << ": all of it is read before any of it is decoded";
            }
        }
    }
}

// What is accepted can be read; what is refused says why, and the same however the octets come in.
TEST(PkixHostile, ChangesOfEveryElement) {
    size_t accepted = 0, refused = 0;
    for (const Kind &kind : kinds) {
        for (const std::string &data : objects(kind)) {
            std::vector<Place> places;
            find_places(data, 0, data.size(), places);
            for (const Place &place : places) {
                std::vector<std::string> changes;
                auto change = [&](size_t at, int octet) {
                    changes.push_back(data);
                    changes.back()[at] = static_cast<char>(octet);
                };
                const int identifier = data[place.begin], length = data[place.begin + place.header - 1];
                for (int octet :
                     {identifier ^ 0x20, identifier ^ 0x80, identifier ^ 1, identifier + 2, 0x00, 0x1F, 0xFF})
                    change(place.begin, octet);
                for (int octet : {length + 1, length - 1, length ^ 0x80, 0x00, 0x80, 0x84, 0xFF})
                    change(place.begin + place.header - 1, octet);
                // Taken out, and there twice.
                changes.push_back(data.substr(0, place.begin) + data.substr(place.begin + place.header + place.length));
                changes.push_back(data.substr(0, place.begin + place.header + place.length) + data.substr(place.begin));
                for (const std::string &changed : changes) {
                    const int64_t before = live_blocks();
                    if (changed.empty() || changed[0] != '\x30' || changed == data)
                        continue;
                    Codes codes;
                    {
                        const Value value = load(kind, changed, &codes);
                        ASSERT_EQ(!value, !codes.empty() && codes != Codes({0x102e3}));
                        ++(value ? accepted : refused);
                        if (value) {
                            ASSERT_EQ(hex(encode(kind.type, value.get()).octets), hex(changed));
                            read_everything(kind, value.get());
                        } else if (data.size() < 520) {
                            Decoded trickled = decode(kind.type, changed, Feed::trickle);
                            ASSERT_EQ(trickled.codes,
                                      codes == Codes({0x1020b}) && trickled.result == 1 ? Codes() : codes);
                        }
                    }
                    ASSERT_TRUE(live_blocks() == before || !is_memory_watched());
                }
            }
        }
    }
    EXPECT_GT(accepted, 1000u);
    EXPECT_GT(refused, 10000u);
}

TEST(PkixHostile, EveryAllocationMayFail) {
    for (const Kind &kind : kinds) {
        for (const std::string &data : objects(kind)) {
            int64_t length = 0;
            const Memory<char> base64(kovra_base64encode(data.data(), size_of(data), 64, &length));
            const Memory<char> pem(kovra_pemencode(data.data(), size_of(data), kind.labels.back().c_str(), &length));
            const Errors ctx(kovra_err_ctx_new());
            for (bool fails_once : {false, true}) {
                for (const char *text :
                     {data.data(), const_cast<const char *>(base64.get()), const_cast<const char *>(pem.get())}) {
                    const bool is_der = text == data.data();
                    const int32_t size = is_der ? size_of(data) : static_cast<int32_t>(std::strlen(text));
                    fail_each_allocation(
                        [&] {
                            kovra_err_ctx_clear(ctx.get());
                            const Value value(kind.type, kind.load(text, size, ctx.get()));
                            if (!value && is_der && ScarceMemory::has_failed()) {
                                EXPECT_EQ(Codes(ctx.get()).at(0), 0x10000);
                            }
                            return value && read_everything(kind, value.get());
                        },
                        fails_once);
                }
                // Content alone has to be written anew.
                const Value value = load(kind, data);
                fail_each_allocation(
                    [&] {
                        const size_t header = data[1] == '\x82' ? 4 : 3;
                        const Input input(std::string_view(data).substr(header));
                        Handle out = nullptr;
                        const int32_t result = input.stream() != nullptr
                                                   ? kovra_asn1_decode_content(
                                                         input.stream(), kind.type, &out, 0,
                                                         size_of(data) - static_cast<int32_t>(header), nullptr, nullptr)
                                                   : 0;
                        const Value bare(kind.type, out);
                        const Value copy(kind.type, kovra_asn1_dupobject(kind.type, value.get(), nullptr));
                        return result == 1 && copy && can_write(kind.type, bare.get());
                    },
                    fails_once);
                if (HasFatalFailure())
                    return;
            }
        }
    }
}

} // namespace
} // namespace kovra::test
