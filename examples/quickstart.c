/* Prints who a certificate is for, and until when. */
#include <stdio.h>

#include "kovra/asn1.h"
#include "kovra/util.h"

int main(int argc, char **argv) {
    static unsigned char octets[65536];
    FILE *file = argc == 2 ? fopen(argv[1], "rb") : NULL;
    size_t length = file != NULL ? fread(octets, 1, sizeof octets, file) : 0;
    kovra_err_ctx *errors = kovra_err_ctx_new();
    kovra_asn1_value *certificate = kovra_x509pubkeycert_new(octets, (int32_t)length, errors);
    if (file != NULL)
        fclose(file);
    for (int32_t i = 0; certificate == NULL && i < kovra_err_ctx_getcount(errors); ++i) {
        const char *text = "";
        kovra_err_ctx_getentry(errors, i, NULL, NULL, NULL, &text);
        puts(text);
    }
    if (certificate == NULL)
        return 1;

    kovra_asn1_value *rdns = kovra_x500name_getdn(kovra_x509pubkeycert_getsubject(certificate));
    for (int32_t i = 0; i < kovra_asn1_list_getsize(rdns); ++i) {
        kovra_asn1_value *rdn = NULL, *attribute = NULL;
        char value[256];
        int32_t count = 0;
        kovra_asn1_list_get(rdns, i, &rdn);
        kovra_asn1_list_get(rdn, 0, &attribute);
        kovra_asn1_any_getcontent(kovra_x500attrtypedistval_getvalue(attribute), 1, value, sizeof value, &count, NULL);
        printf("%s: %.*s\n", kovra_asn1_oid_getstring(kovra_x500attrtypedistval_gettype(attribute)), (int)count, value);
    }
    kovra_asn1_value *not_after = kovra_x509validity_getnotafter(kovra_x509pubkeycert_getvalidity(certificate));
    kovra_time *end = kovra_asn1_time_getutctime(not_after);
    printf("until %04d-%02d-%02d\n", (int)kovra_time_getyear(end), (int)kovra_time_getmonth(end),
           (int)kovra_time_getday(end));
    kovra_time_free(end);
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE, certificate);
    kovra_err_ctx_free(errors);
    return 0;
}
