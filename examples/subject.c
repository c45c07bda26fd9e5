/* Prints the subject of a certificate in a file of DER, an attribute a line: its type, and its value in UTF-8. */
#include <stdio.h>

#include "kovra/asn1.h"
#include "kovra/util.h"

/* The characters of a string of one of the usual types; null for others. */
static kovra_ustring *characters(kovra_asn1_value *value) {
    static char octets[65536];
    int32_t tag = 0, length = 0;
    if (kovra_asn1_any_gettagnumber(value, &tag) != 1 ||
        kovra_asn1_any_getcontent(value, 1, octets, sizeof octets, &length, NULL) != 1)
        return NULL;
    switch (tag) {
    case 12: /* UTF8String; the next two are subsets of ASCII, which is UTF-8 */
    case 19: /* PrintableString */
    case 22: /* IA5String */
        return kovra_ustring_newutf8(octets, length);
    case 28: /* UniversalString */
        return kovra_ustring_newutf32be(octets, length);
    case 30: /* BMPString */
        return kovra_ustring_newbmp(octets, length);
    default:
        return NULL;
    }
}

static void print(kovra_asn1_value *attribute) {
    kovra_ustring *text = characters(kovra_x500attrtypedistval_getvalue(attribute));
    kovra_data_blob *utf8 = kovra_ustring_toutf8(text);
    printf("%s ", kovra_asn1_oid_getstring(kovra_x500attrtypedistval_gettype(attribute)));
    if (utf8 != NULL)
        printf("%.*s\n", (int)kovra_data_blob_getlength(utf8), (const char *)kovra_data_blob_getdata(utf8));
    else
        puts("(no text)");
    kovra_data_blob_free(utf8);
    kovra_ustring_free(text);
}

int main(int argc, char **argv) {
    kovra_err_ctx *errors = kovra_err_ctx_new();
    kovra_stream *file = argc == 2 ? kovra_stream_new_file(argv[1], KOVRA_FILE_READ, errors) : NULL;
    kovra_asn1_value *certificate = NULL, *name = NULL, *attribute = NULL;
    int good = file != NULL && kovra_asn1_decode(file, KOVRA_ASN1_TYPE_CERTIFICATE, &certificate, NULL, errors) == 1;
    kovra_asn1_value *names = good ? kovra_x500name_getdn(kovra_x509pubkeycert_getsubject(certificate)) : NULL;
    for (int32_t i = 0; good && kovra_asn1_list_get(names, i, &name) == 1; ++i)
        for (int32_t k = 0; kovra_asn1_list_get(name, k, &attribute) == 1; ++k)
            print(attribute);
    if (!good)
        fputs("usage: subject CERTIFICATE.der\n", stderr);
    kovra_asn1_value_free(KOVRA_ASN1_TYPE_CERTIFICATE, certificate);
    kovra_stream_free(file);
    kovra_err_ctx_free(errors);
    return good ? 0 : 1;
}
