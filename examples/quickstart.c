/* Prints who a certificate is for, by attribute type, and until when. */
#include <stdio.h>

#include "kovra/asn1.h"
#include "kovra/util.h"

static int show(const void *octets, int32_t length) {
    kovra_err_ctx *errors = kovra_err_ctx_new();
    kovra_asn1_value *certificate = kovra_x509pubkeycert_new(octets, length, errors);
    int good = certificate != NULL;
    if (good) {
        /* What is got from a value is borrowed from it; only the companion's time is new. */
        kovra_asn1_value *names = kovra_x500name_getdn(kovra_x509pubkeycert_getsubject(certificate));
        kovra_asn1_value *name = NULL, *attribute = NULL;
        for (int32_t i = 0; kovra_asn1_list_get(names, i, &name) == 1; ++i)
            for (int32_t k = 0; kovra_asn1_list_get(name, k, &attribute) == 1; ++k)
                puts(kovra_asn1_oid_getstring(kovra_x500attrtypedistval_gettype(attribute)));
        kovra_asn1_value *validity = kovra_x509pubkeycert_getvalidity(certificate);
        kovra_time *end = kovra_asn1_time_getutctime(kovra_x509validity_getnotafter(validity));
        printf("until %d-%02d-%02d\n", kovra_time_getyear(end), kovra_time_getmonth(end), kovra_time_getday(end));
        kovra_time_free(end);
    }
    const char *message = NULL;
    for (int32_t i = 0, code = 0; kovra_err_ctx_getentry(errors, i, NULL, NULL, &code, &message) == 1; ++i)
        fprintf(stderr, "0x%x %s\n", (unsigned)code, message);
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE, certificate);
    kovra_err_ctx_free(errors);
    return good;
}

int main(int argc, char **argv) {
    static unsigned char octets[65536];
    FILE *file = argc == 2 ? fopen(argv[1], "rb") : NULL;
    if (file == NULL) {
        fputs("usage: quickstart CERTIFICATE.der\n", stderr);
        return 2;
    }
    size_t length = fread(octets, 1, sizeof octets, file);
    fclose(file);
    return show(octets, (int32_t)length) ? 0 : 1;
}
