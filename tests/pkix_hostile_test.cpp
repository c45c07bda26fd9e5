// Certificates, CRLs and requests that are cut, changed, or read where memory is short.
#include <array>

#include "tests/failing_memory.hpp"
#include "tests/pkix_testing.hpp"

namespace kovra::test {
namespace {

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
