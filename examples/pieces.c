/* Reads a certificate from standard input piece by piece, without knowing its size, and prints its serial number. */
#include <stdio.h>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

#include "kovra/asn1.h"
#include "kovra/util.h"

static kovra_asn1_value *receive_certificate(FILE *from, kovra_err_ctx *errors) {
    kovra_asn1_decode_any_ctx *ctx = kovra_asn1_decode_any_ctx_new();
    kovra_asn1_value *certificate = NULL;
    char piece[512];
    int32_t left = 0;
    while (!kovra_asn1_decode_any_isfinish(ctx)) {
        size_t count = fread(piece, 1, sizeof piece, from);
        if (count == 0 || kovra_asn1_decode_any_update(ctx, piece, (int32_t)count, &left) != 1)
            break;
    }
    kovra_asn1_decode_any_ctx_toobject(ctx, KOVRA_ASN1_TYPE_CERTIFICATE, &certificate, errors);
    kovra_asn1_decode_any_ctx_free(ctx);
    return certificate;
}

int main(void) {
#if defined(_WIN32)
    _setmode(0, _O_BINARY); /* octets, not lines of text */
#endif
    kovra_err_ctx *errors = kovra_err_ctx_new();
    kovra_asn1_value *certificate = receive_certificate(stdin, errors);
    kovra_data_blob *serial =
        kovra_asn1_mem_encode(KOVRA_ASN1_TYPE_INTEGER, kovra_x509pubkeycert_getserialno(certificate));
    for (int32_t i = 2; i < kovra_data_blob_getlength(serial); ++i)
        printf("%02X", kovra_data_blob_getdata(serial)[i]);
    puts(certificate != NULL ? "" : "no certificate");
    const int good = certificate != NULL;
    kovra_data_blob_free(serial);
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE, certificate);
    kovra_err_ctx_free(errors);
    return good ? 0 : 1;
}
