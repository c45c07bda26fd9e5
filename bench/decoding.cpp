// Decoding certificates and CRLs, beside other libraries in the same run: absolute times mean nothing, ratios do.

#include <benchmark/benchmark.h>

#include "inputs.hpp"
#include "kovra/asn1.h"
#include "kovra/util.h"

#if defined(HAVE_OPENSSL)
#include <openssl/x509.h>
#endif
#if defined(HAVE_MBEDTLS)
#include <mbedtls/x509_crl.h>
#include <mbedtls/x509_crt.h>
#endif
#if defined(HAVE_GNUTLS)
#include <gnutls/x509.h>
#endif

namespace {

using kovra::bench::certificates;
using kovra::bench::make_crl;

constexpr uint32_t crl_entries = 1000000;

// Runs over all certificates; one iteration is all of them, an item is one.
template <class Run> void over_certificates(benchmark::State &state, Run run) {
    int64_t octets = 0;
    for (const auto &certificate : certificates())
        octets += static_cast<int64_t>(certificate.size());
    for (auto _ : state)
        for (const auto &certificate : certificates())
            if (!run(reinterpret_cast<const uint8_t *>(certificate.data()), certificate.size()))
                return state.SkipWithError("a certificate was refused");
    state.SetBytesProcessed(state.iterations() * octets);
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(certificates().size()));
}

// The least that any decoder does: a look at every header of the constructed elements.
uint32_t walk(const uint8_t *at, const uint8_t *end) {
    uint32_t elements = 0;
    while (at != end) {
        const bool is_constructed = (*at++ & 0x20) != 0;
        size_t length = *at++;
        if (length >= 0x80) {
            size_t count = length & 0x7F;
            for (length = 0; count != 0; --count)
                length = length << 8 | *at++;
        }
        ++elements;
        if (is_constructed)
            elements += walk(at, at + length);
        at += length;
    }
    return elements;
}

void certificate_bare_walk(benchmark::State &state) {
    over_certificates(state, [](const uint8_t *data, size_t size) {
        benchmark::DoNotOptimize(walk(data, data + size));
        return true;
    });
}
BENCHMARK(certificate_bare_walk);

void certificate_any_kovra(benchmark::State &state) {
    over_certificates(state, [](const uint8_t *data, size_t size) {
        kovra_asn1_value *value = nullptr;
        const bool is_good = kovra_asn1_mem_decode(data, static_cast<int32_t>(size), KOVRA_ASN1_TYPE_ANY, &value) > 0;
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_ANY, value);
        return is_good;
    });
}
BENCHMARK(certificate_any_kovra);

void certificate_kovra(benchmark::State &state) {
    over_certificates(state, [](const uint8_t *data, size_t size) {
        kovra_asn1_value *value = kovra_x509pubkeycert_new(data, static_cast<int32_t>(size), nullptr);
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE, value);
        return value != nullptr;
    });
}
BENCHMARK(certificate_kovra);

// Every field, every member of both names, every extension.
void certificate_read_all_kovra(benchmark::State &state) {
    const auto read_name = [](const kovra_asn1_value *name) {
        kovra_asn1_value *rdns = kovra_x500name_getdn(name);
        int64_t sum = 0;
        for (int32_t i = 0; i < kovra_asn1_list_getsize(rdns); ++i) {
            kovra_asn1_value *rdn = nullptr;
            kovra_asn1_list_get(rdns, i, &rdn);
            for (int32_t j = 0; j < kovra_asn1_list_getsize(rdn); ++j) {
                kovra_asn1_value *member = nullptr;
                kovra_asn1_list_get(rdn, j, &member);
                sum += kovra_asn1_oid_getstring(kovra_x500attrtypedistval_gettype(member))[0];
                sum += kovra_asn1_any_getcontentlength(kovra_x500attrtypedistval_getvalue(member));
            }
        }
        return sum;
    };
    over_certificates(state, [&](const uint8_t *data, size_t size) {
        kovra_asn1_value *value = kovra_x509pubkeycert_new(data, static_cast<int32_t>(size), nullptr);
        int64_t sum =
            read_name(kovra_x509pubkeycert_getissuer(value)) + read_name(kovra_x509pubkeycert_getsubject(value));
        int32_t version = 0;
        kovra_asn1_integer_getlong(kovra_x509pubkeycert_getversion(value), &version);
        sum += version + kovra_asn1_integer_getlength(kovra_x509pubkeycert_getserialno(value));
        kovra_asn1_value *validity = kovra_x509pubkeycert_getvalidity(value);
        for (const auto *time : {kovra_x509validity_getnotbefore(validity), kovra_x509validity_getnotafter(validity)}) {
            kovra_time *calendar_time = kovra_asn1_time_getutctime(time);
            sum += kovra_time_getyear(calendar_time);
            kovra_time_free(calendar_time);
        }
        sum +=
            kovra_asn1_bitstring_getlength(kovra_x509subjpubkeyinfo_getpubkey(kovra_x509pubkeycert_getpubkey(value)));
        kovra_asn1_value *extensions = kovra_x509pubkeycert_getexts(value);
        for (int32_t i = 0; i < kovra_asn1_list_getsize(extensions); ++i) {
            kovra_asn1_value *extension = nullptr;
            kovra_asn1_list_get(extensions, i, &extension);
            sum += kovra_asn1_oid_getstring(kovra_x509extension_getid(extension))[0];
            sum += kovra_asn1_boolean_istrue(kovra_x509extension_getcritical(extension));
            sum += kovra_asn1_octetstring_getlength(kovra_x509extension_getvalue(extension));
        }
        benchmark::DoNotOptimize(sum);
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE, value);
        return value != nullptr;
    });
}
BENCHMARK(certificate_read_all_kovra);

#if defined(HAVE_MBEDTLS)
void certificate_mbedtls_without_copy(benchmark::State &state) {
    over_certificates(state, [](const uint8_t *data, size_t size) {
        mbedtls_x509_crt certificate;
        mbedtls_x509_crt_init(&certificate);
        const bool is_good = mbedtls_x509_crt_parse_der_nocopy(&certificate, data, size) == 0;
        mbedtls_x509_crt_free(&certificate);
        return is_good;
    });
}
BENCHMARK(certificate_mbedtls_without_copy);
#endif

#if defined(HAVE_OPENSSL)
void certificate_openssl(benchmark::State &state) {
    over_certificates(state, [](const uint8_t *data, size_t size) {
        X509 *certificate = d2i_X509(nullptr, &data, static_cast<long>(size));
        X509_free(certificate);
        return certificate != nullptr;
    });
}
BENCHMARK(certificate_openssl);
#endif

#if defined(HAVE_GNUTLS)
void certificate_gnutls(benchmark::State &state) {
    over_certificates(state, [](const uint8_t *data, size_t size) {
        gnutls_x509_crt_t certificate = nullptr;
        const gnutls_datum_t octets{const_cast<unsigned char *>(data), static_cast<unsigned>(size)};
        if (gnutls_x509_crt_init(&certificate) < 0)
            return false;
        const bool is_good = gnutls_x509_crt_import(certificate, &octets, GNUTLS_X509_FMT_DER) == 0;
        gnutls_x509_crt_deinit(certificate);
        return is_good;
    });
}
BENCHMARK(certificate_gnutls);
#endif

// Encoding a TBSCertificate from its parts, which keep nothing but their names' octets.
void tbs_encode_kovra(benchmark::State &state) {
    const auto &first = certificates().front();
    kovra_asn1_value *certificate = kovra_x509pubkeycert_new(first.data(), static_cast<int32_t>(first.size()), nullptr);
    kovra_asn1_value *tbs = kovra_x509TBSCertificate_new(
        kovra_x509pubkeycert_getversion(certificate), kovra_x509pubkeycert_getserialno(certificate),
        kovra_x509pubkeycert_getinnersignalgo(certificate), kovra_x509pubkeycert_getissuer(certificate),
        kovra_x509pubkeycert_getvalidity(certificate), kovra_x509pubkeycert_getsubject(certificate),
        kovra_x509pubkeycert_getpubkey(certificate), nullptr, nullptr, kovra_x509pubkeycert_getexts(certificate));
    for (auto _ : state) {
        kovra_data_blob *encoding = kovra_asn1_mem_encode(KOVRA_ASN1_TYPE_TBS_CERTIFICATE, tbs);
        benchmark::DoNotOptimize(kovra_data_blob_getlength(encoding));
        kovra_data_blob_free(encoding);
    }
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_TBS_CERTIFICATE, tbs);
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE, certificate);
}
BENCHMARK(tbs_encode_kovra);

#if defined(HAVE_OPENSSL)
void tbs_encode_openssl(benchmark::State &state) {
    const auto &first = certificates().front();
    const auto *data = reinterpret_cast<const uint8_t *>(first.data());
    X509 *certificate = d2i_X509(nullptr, &data, static_cast<long>(first.size()));
    for (auto _ : state) {
        uint8_t *encoding = nullptr;
        benchmark::DoNotOptimize(i2d_re_X509_tbs(certificate, &encoding));
        OPENSSL_free(encoding);
    }
    X509_free(certificate);
}
BENCHMARK(tbs_encode_openssl);
#endif

void report_crl(benchmark::State &state, size_t octets) {
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(octets));
}

void crl_kovra(benchmark::State &state) {
    const std::string crl = make_crl(crl_entries);
    for (auto _ : state) {
        kovra_asn1_value *value = kovra_x509crl_new(crl.data(), static_cast<int32_t>(crl.size()), nullptr);
        benchmark::DoNotOptimize(value);
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE_LIST, value);
    }
    report_crl(state, crl.size());
}
BENCHMARK(crl_kovra)->Unit(benchmark::kMillisecond);

void crl_read_all_kovra(benchmark::State &state) {
    const std::string crl = make_crl(crl_entries);
    for (auto _ : state) {
        kovra_asn1_value *value = kovra_x509crl_new(crl.data(), static_cast<int32_t>(crl.size()), nullptr);
        kovra_asn1_value *revoked = kovra_x509crl_getrevcerts(value);
        int64_t sum = 0;
        for (int32_t i = 0; i < kovra_asn1_list_getsize(revoked); ++i) {
            kovra_asn1_value *entry = nullptr;
            kovra_asn1_list_get(revoked, i, &entry);
            sum += kovra_asn1_integer_getlength(kovra_x509revcertinfo_getserilano(entry));
        }
        benchmark::DoNotOptimize(sum);
        kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE_LIST, value);
    }
    report_crl(state, crl.size());
}
BENCHMARK(crl_read_all_kovra)->Unit(benchmark::kMillisecond);

#if defined(HAVE_MBEDTLS)
void crl_mbedtls(benchmark::State &state) {
    const std::string crl = make_crl(crl_entries);
    for (auto _ : state) {
        mbedtls_x509_crl value;
        mbedtls_x509_crl_init(&value);
        if (mbedtls_x509_crl_parse_der(&value, reinterpret_cast<const uint8_t *>(crl.data()), crl.size()) != 0)
            state.SkipWithError("the CRL was refused");
        mbedtls_x509_crl_free(&value);
    }
    report_crl(state, crl.size());
}
BENCHMARK(crl_mbedtls)->Unit(benchmark::kMillisecond);
#endif

#if defined(HAVE_OPENSSL)
void crl_openssl(benchmark::State &state) {
    const std::string crl = make_crl(crl_entries);
    for (auto _ : state) {
        const auto *data = reinterpret_cast<const uint8_t *>(crl.data());
        X509_CRL *value = d2i_X509_CRL(nullptr, &data, static_cast<long>(crl.size()));
        X509_CRL_free(value);
    }
    report_crl(state, crl.size());
}
BENCHMARK(crl_openssl)->Unit(benchmark::kMillisecond);
#endif

void crl_to_json_kovra(benchmark::State &state) {
    const std::string crl = make_crl(crl_entries);
    for (auto _ : state) {
        kovra_json *json = kovra_asn1_tojson(crl.data(), static_cast<int32_t>(crl.size()));
        benchmark::DoNotOptimize(json);
        kovra_json_free(json);
    }
    report_crl(state, crl.size());
}
BENCHMARK(crl_to_json_kovra)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
