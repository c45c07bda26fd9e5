// DER order among values with context, which names and attributes share.
#pragma once

#include "core/list.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

// Sorts the context list of each item of a list of values with context, then the list itself. An absent list is sorted.
inline Result sort_contexts(kovra_asn1_value *values_with_context, const StructureShape &item_shape,
                            uint8_t context_list_slot, const Type &item_type) {
    auto *items = as<List>(values_with_context);
    if (items == nullptr)
        return success;
    for (uint32_t i = 0; i < items->count; ++i) {
        auto *contexts = static_cast<List *>(component(item_shape, list_element(*items, i), context_list_slot));
        if (const Result result = sort_list(contexts, row(KOVRA_ASN1_TYPE_CONTEXT)); result != success)
            return result;
    }
    return sort_list(items, item_type);
}

} // namespace kovra::asn1
