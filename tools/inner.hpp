// The structures within structures: content and keys whose type an object identifier names.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "show.hpp"
#include "tool_handles.hpp"

namespace kovra::tool {

// The types that content of the given identifier may be of, the likeliest first; none when it is not known. The content
// of type data is any octets.
std::span<const OidRow> find_content(std::string_view oid);
inline constexpr std::string_view data_oid = "1.2.840.113549.1.7.1";
inline constexpr std::string_view basic_response_oid = "1.3.6.1.5.5.7.48.1.1";

// The types of keys in a PrivateKeyInfo by algorithm, of bags, and of what is in a bag of certificates or CRLs.
const OidRow *find_private_key(std::string_view algorithm);
const OidRow *find_bag(std::string_view id);
const OidRow *find_bag_content(std::string_view id);

// A structure that another holds as octets or as an element of any type: the content of messages, responses, tokens,
// keys and stores.
struct Inner {
    std::string octets;                            // its encoding
    std::span<const OidRow> rows;                  // the types that it may be of; none when they are not known
    uint32_t type_of_data = KOVRA_ASN1_TYPE_COUNT; // of content of type data inside it, where that is known
};
// Calls the function with every structure that the value holds so.
void for_each_inner(uint32_t type, kovra_asn1_value *value, uint32_t type_of_data,
                    const std::function<void(Inner)> &function);

} // namespace kovra::tool
