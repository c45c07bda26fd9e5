// The curve of a key (EcpkParameters, RFC 3279, 2.3.5).

#include "core/part.hpp"
#include "core/registry.hpp"
#include "kovra/asn1_ecc.h"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

constexpr char source[] = "ASN1_ECC";

// EcpkParameters ::= CHOICE {
//     ecParameters  SEQUENCE OF ANY,
//     namedCurve    OBJECT IDENTIFIER,
//     implicitlyCA  NULL }
// Curves that are written out stay open. The form of the two primitive ones is judged when their content is read.
constexpr Component parameters_alternatives[] = {
    required("ecParameters", KOVRA_ASN1_TYPE_SEQUENCE_OF_ANY_1),
    required("namedCurve", KOVRA_ASN1_TYPE_OBJECT_IDENTIFIER),
    required("implicitlyCA", KOVRA_ASN1_TYPE_NULL),
};

} // namespace

constexpr ChoiceShape ecpk_parameters = choice(source, parameters_alternatives, AnyForm::of_untagged_leaves);

} // namespace kovra::asn1

using namespace kovra::asn1;

kovra_asn1_value *kovra_ecpkparameters_new_namedcurve(const kovra_asn1_value *curve) noexcept {
    return construct_choice<ecpk_parameters, "namedCurve">(curve);
}

kovra_asn1_value *kovra_ecpkparameters_new_implicitlyca(void) noexcept {
    return construct_choice<ecpk_parameters, "implicitlyCA">();
}

int32_t kovra_ecpkparameters_gettype(const kovra_asn1_value *obj) noexcept {
    const Choice *choice = as_choice(ecpk_parameters, obj);
    return choice != nullptr ? static_cast<int32_t>(choice->alternative) + 1 : 0;
}

kovra_asn1_value *kovra_ecpkparameters_namedcurve(const kovra_asn1_value *obj) noexcept {
    return chosen<ecpk_parameters, "namedCurve">(obj);
}
