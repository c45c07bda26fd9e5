#include <cstdio>

#include "kovra/asn1.h"
#include "kovra/util.h"

int main() {
    kovra_err_ctx *errors = kovra_err_ctx_new();
    std::puts(kovra_asn1_version());
    kovra_err_ctx_free(errors);
    return 0;
}
