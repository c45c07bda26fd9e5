// The structures of messages told once more as tables of their parts, for tests to walk: what a constructor takes, how
// each part is tagged, and who gives it back.
#pragma once

#include <cstring>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "tests/asn1_testing.hpp"

namespace kovra::test {

using Handle = const kovra_asn1_value *;
using Getter = kovra_asn1_value *(*)(Handle);
using Haser = int32_t (*)(Handle);
using Maker = std::function<kovra_asn1_value *(const std::vector<Handle> &)>;

template <class... Arguments> Maker maker(kovra_asn1_value *(*make)(Arguments...)) {
    return [make](const std::vector<Handle> &arguments) {
        return [&]<size_t... i>(std::index_sequence<i...>) {
            return make(arguments[i]...);
        }
        (std::index_sequence_for<Arguments...>());
    };
}

// A component: its type; "e0" and "i0" for tags, "?" for OPTIONAL; how it is asked for.
struct Part {
    uint32_t type;
    const char *notation;
    Getter get;
    Haser has = nullptr;
    bool is_optional() const { return std::strchr(notation, '?') != nullptr; }
};
struct Layout {
    uint32_t type;
    Maker make;
    std::vector<Part> parts;
};

inline const std::vector<Layout> &layouts() {
    static const std::vector<Layout> all = {
        {111,
         maker(kovra_pkcs7contentinfo_new),
         {{6, "", kovra_pkcs7contentinfo_getcontenttype},
          {23, "e0?", kovra_pkcs7contentinfo_getcontent, kovra_pkcs7contentinfo_hascontent}}},
        {121,
         nullptr,
         {{2, "", kovra_pkcs7digesteddata_getversion},
          {33, "", kovra_pkcs7digesteddata_getdigestalgo},
          {111, "", kovra_pkcs7digesteddata_getcontentinfo},
          {4, "", kovra_pkcs7digesteddata_getdigest}}},
        {122,
         maker(kovra_cmsissuerandsn_new),
         {{32, "", kovra_cmsissuerandsn_getissuer}, {2, "", kovra_cmsissuerandsn_getsn}}},
        {124,
         maker(kovra_cmssignerinfo_new),
         {{2, "", kovra_cmssignerinfo_getversion},
          {123, "", kovra_cmssignerinfo_getsid},
          {33, "", kovra_cmssignerinfo_getdigestalgo},
          {44, "i0?", kovra_cmssignerinfo_getsignattrs, kovra_cmssignerinfo_hassignattrs},
          {33, "", kovra_cmssignerinfo_getsignalgo},
          {4, "", kovra_cmssignerinfo_getsignature},
          {44, "i1?", kovra_cmssignerinfo_getunsignattrs, kovra_cmssignerinfo_hasunsignattrs}}},
        {127,
         maker(kovra_cmsothercertformat_new),
         {{6, "", kovra_cmsothercertformat_getformat}, {23, "", kovra_cmsothercertformat_getothercert}}},
        {128,
         maker(kovra_cmsotherrevinfoformat_new),
         {{6, "", kovra_cmsotherrevinfoformat_getformat}, {23, "", kovra_cmsotherrevinfoformat_getotherrevinfo}}},
        {134,
         maker(kovra_pkcs7signeddata_new),
         {{2, "", kovra_pkcs7signeddata_getversion},
          {126, "", kovra_pkcs7signeddata_getdigestalgos},
          {111, "", kovra_pkcs7signeddata_getcontentinfo},
          {131, "i0?", kovra_pkcs7signeddata_getcerts, kovra_pkcs7signeddata_hascerts},
          {132, "i1?", kovra_pkcs7signeddata_getcrls, kovra_pkcs7signeddata_hascrls},
          {125, "", kovra_pkcs7signeddata_getsignerinfos}}},
        {147,
         maker(kovra_cmsencapsulatedcontentinfo_new),
         {{6, "", kovra_cmsencapsulatedcontentinfo_getcontenttype},
          {4, "e0?", kovra_cmsencapsulatedcontentinfo_getcontent}}},
        {148,
         maker(kovra_cmsencryptedcontentinfo_new),
         {{6, "", kovra_cmsencryptedcontentinfo_gettype},
          {33, "", kovra_cmsencryptedcontentinfo_getalgo},
          {4, "i0?", kovra_cmsencryptedcontentinfo_getenccontent, kovra_cmsencryptedcontentinfo_hasenccontent}}},
        {149,
         maker(kovra_cmsencrypteddata_new),
         {{2, "", kovra_cmsencrypteddata_getversion},
          {148, "", kovra_cmsencrypteddata_getencinfo},
          {44, "i1?", kovra_cmsencrypteddata_getattrs, kovra_cmsencrypteddata_hasattrs}}},
        {150,
         maker(kovra_cmsoriginatorinfo_new),
         {{131, "i0?", kovra_cmsoriginatorinfo_getcerts, kovra_cmsoriginatorinfo_hascerts},
          {132, "i1?", kovra_cmsoriginatorinfo_getcrls, kovra_cmsoriginatorinfo_hascrls}}},
        {151,
         maker(kovra_cmskeytransrecipientinfo_new),
         {{2, "", kovra_cmskeytransrecipientinfo_getversion},
          {123, "", kovra_cmskeytransrecipientinfo_getrid},
          {33, "", kovra_cmskeytransrecipientinfo_getencalgo},
          {4, "", kovra_cmskeytransrecipientinfo_getenckey}}},
        {153,
         maker(kovra_cmsotherkeyattr_new),
         {{6, "", kovra_cmsotherkeyattr_getattrid},
          {23, "?", kovra_cmsotherkeyattr_getattrvalue, kovra_cmsotherkeyattr_hasattrvalue}}},
        {154,
         maker(kovra_cmsrecipientkeyid_new),
         {{4, "", kovra_cmsrecipientkeyid_getsubkeyid},
          {22, "?", kovra_cmsrecipientkeyid_getdate, kovra_cmsrecipientkeyid_hasdate},
          {153, "?", kovra_cmsrecipientkeyid_getotherattr, kovra_cmsrecipientkeyid_hasotherattr}}},
        {156,
         maker(kovra_cmsrecipientenckey_new),
         {{155, "", kovra_cmsrecipientenckey_getid}, {4, "", kovra_cmsrecipientenckey_getenckey}}},
        {158,
         maker(kovra_cmskeyagreerecipientinfo_new),
         {{2, "", kovra_cmskeyagreerecipientinfo_getversion},
          {152, "e0", kovra_cmskeyagreerecipientinfo_getoriginator},
          {4, "e1?", kovra_cmskeyagreerecipientinfo_getukm, kovra_cmskeyagreerecipientinfo_hasukm},
          {33, "", kovra_cmskeyagreerecipientinfo_getencalgo},
          {157, "", kovra_cmskeyagreerecipientinfo_getenckeys}}},
        {159,
         maker(kovra_cmskekrecipientinfo_new),
         {{2, "", kovra_cmskekrecipientinfo_getversion},
          {154, "", kovra_cmskekrecipientinfo_getkekid},
          {33, "", kovra_cmskekrecipientinfo_getencalgo},
          {4, "", kovra_cmskekrecipientinfo_getenckey}}},
        {160,
         maker(kovra_cmspwdrecipientinfo_new),
         {{2, "", kovra_cmspwdrecipientinfo_getversion},
          {33, "i0?", kovra_cmspwdrecipientinfo_getderivalgo, kovra_cmspwdrecipientinfo_hasderivalgo},
          {33, "", kovra_cmspwdrecipientinfo_getencalgo},
          {4, "", kovra_cmspwdrecipientinfo_getenckey}}},
        {161,
         maker(kovra_cmsotherrecipientinfo_new),
         {{6, "", kovra_cmsotherrecipientinfo_gettype}, {23, "", kovra_cmsotherrecipientinfo_getvalue}}},
        {164,
         maker(kovra_cmsenvelopeddata_new),
         {{2, "", kovra_cmsenvelopeddata_getversion},
          {150, "i0?", kovra_cmsenvelopeddata_getoriginator, kovra_cmsenvelopeddata_hasoriginator},
          {163, "", kovra_cmsenvelopeddata_getrecipinfos},
          {148, "", kovra_cmsenvelopeddata_getencinfo},
          {44, "i1?", kovra_cmsenvelopeddata_getattrs, kovra_cmsenvelopeddata_hasattrs}}},
        {165,
         maker(kovra_cmsauthdata_new),
         {{2, "", kovra_cmsauthdata_getversion},
          {150, "i0?", kovra_cmsauthdata_getoriginator, kovra_cmsauthdata_hasoriginator},
          {163, "", kovra_cmsauthdata_getrecipinfos},
          {33, "", kovra_cmsauthdata_getmacalgo},
          {33, "i1?", kovra_cmsauthdata_gethashalgo, kovra_cmsauthdata_hashashalgo},
          {147, "", kovra_cmsauthdata_getencapinfo},
          {44, "i2?", kovra_cmsauthdata_getauthatrrs, kovra_cmsauthdata_hasauthatrrs},
          {4, "", kovra_cmsauthdata_getmac},
          {44, "i3?", kovra_cmsauthdata_getunauthatrrs, kovra_cmsauthdata_hasunauthatrrs}}},
        {166,
         maker(kovra_dhkeyspecinfo_new),
         {{6, "", kovra_dhkeyspecinfo_getalgo}, {4, "", kovra_dhkeyspecinfo_getcount}}},
        {167,
         maker(kovra_dhotherinfo_new),
         {{166, "", kovra_dhotherinfo_getkeyspec},
          {4, "e0?", kovra_dhotherinfo_getpartyainfo, kovra_dhotherinfo_haspartyainfo},
          {4, "e2", kovra_dhotherinfo_getsupppubinfo}}},
    };
    return all;
}

// An alternative of a choice; those without a constructor come from decoding only.
struct Alternative {
    uint32_t type;
    int32_t number;
    Haser get_number;
    kovra_asn1_value *(*make)(Handle);
    Part part;
};

inline const std::vector<Alternative> &alternatives() {
    static const std::vector<Alternative> all = {
        {123, 0, kovra_cmssignerid_gettype, kovra_cmssignerid_newissuersn, {122, "", kovra_cmssignerid_getissuersn}},
        {123, 1, kovra_cmssignerid_gettype, kovra_cmssignerid_newsubkeyid, {4, "i0", kovra_cmssignerid_getkeyid}},
        {129,
         0,
         kovra_cmscertchoice_gettype,
         kovra_cmscertchoice_newx509pubkeycert,
         {39, "", kovra_cmscertchoice_getx509pubkeycert}},
        {129, 1, kovra_cmscertchoice_gettype, nullptr, {25, "i0", kovra_cmscertchoice_getx509pubkeycert}},
        {129, 2, kovra_cmscertchoice_gettype, nullptr, {25, "i1", kovra_cmscertchoice_getx509pubkeycert}},
        {129, 3, kovra_cmscertchoice_gettype, nullptr, {25, "i2", kovra_cmscertchoice_getx509pubkeycert}},
        {129,
         4,
         kovra_cmscertchoice_gettype,
         kovra_cmscertchoice_newothercert,
         {127, "i3", kovra_cmscertchoice_getothercert}},
        {130,
         0,
         kovra_cmsrevinfochoice_gettype,
         kovra_cmsrevinfochoice_newcrl,
         {41, "", kovra_cmsrevinfochoice_getcrl}},
        {130,
         1,
         kovra_cmsrevinfochoice_gettype,
         kovra_cmsrevinfochoice_newotherrevinfo,
         {128, "i1", kovra_cmsrevinfochoice_getotherrevinfo}},
        {152,
         0,
         kovra_cmsorgidorkey_gettype,
         kovra_cmsorgidorkey_newissuersn,
         {122, "", kovra_cmsorgidorkey_getissuersn}},
        {152,
         1,
         kovra_cmsorgidorkey_gettype,
         kovra_cmsorgidorkey_newsubkeyid,
         {4, "i0", kovra_cmsorgidorkey_getsubkeyid}},
        {152, 2, kovra_cmsorgidorkey_gettype, kovra_cmsorgidorkey_neworgkey, {35, "i1", kovra_cmsorgidorkey_getorgkey}},
        {155,
         0,
         kovra_cmskeyagreerecipientid_gettype,
         kovra_cmskeyagreerecipientid_newissuersn,
         {122, "", kovra_cmskeyagreerecipientid_getissuersn}},
        {155,
         1,
         kovra_cmskeyagreerecipientid_gettype,
         kovra_cmskeyagreerecipientid_newrkeyid,
         {154, "i0", kovra_cmskeyagreerecipientid_getrkeyid}},
        {162,
         0,
         kovra_cmsrecipientinfo_gettype,
         kovra_cmsrecipientinfo_newktri,
         {151, "", kovra_cmsrecipientinfo_getktri}},
        {162,
         1,
         kovra_cmsrecipientinfo_gettype,
         kovra_cmsrecipientinfo_newkari,
         {158, "i1", kovra_cmsrecipientinfo_getkari}},
        {162,
         2,
         kovra_cmsrecipientinfo_gettype,
         kovra_cmsrecipientinfo_newkekri,
         {159, "i2", kovra_cmsrecipientinfo_getkekri}},
        {162,
         3,
         kovra_cmsrecipientinfo_gettype,
         kovra_cmsrecipientinfo_newpwri,
         {160, "i3", kovra_cmsrecipientinfo_getpwri}},
        {162,
         4,
         kovra_cmsrecipientinfo_gettype,
         kovra_cmsrecipientinfo_newori,
         {161, "i4", kovra_cmsrecipientinfo_getori}},
    };
    return all;
}

// Lists, and the type of their elements.
inline const std::map<uint32_t, uint32_t> &lists() {
    static const std::map<uint32_t, uint32_t> all = {{44, 43},   {125, 124}, {126, 33}, {131, 129},
                                                     {132, 130}, {157, 156}, {163, 162}};
    return all;
}

} // namespace kovra::test
