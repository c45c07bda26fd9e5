#include "core/failure.hpp"

#include "core/messages.hpp"

namespace kovra::asn1 {

void report(kovra_err_ctx *ctx, Site site, int32_t code) {
    if (ctx == nullptr)
        return;
    const char *text = message(code);
    if (code >= 0x10100 && code < code::first)
        text = kovra_igetStreamError(code);
    else if (code >= 0x10000 && code < 0x10100)
        text = kovra_igetGeneralError(code);
    kovra_err_ctx_put(ctx, site.source, site.line, code, text);
}

void report_general(kovra_err_ctx *ctx, Site site, int32_t code) {
    kovra_err_ctx_put(ctx, site.source, site.line, code, kovra_igetGeneralError(code));
}

} // namespace kovra::asn1
