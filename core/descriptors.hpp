// What the rows of the registry name: the operations of the leaves and the declarations of the structures, which stand
// in the folders of their subjects.
#pragma once

namespace kovra::asn1 {

struct Operations;
struct Structure;
struct ListShape;
struct ChoiceShape;
struct StringChoice;

extern const Operations end_of_contents_operations;
extern const Operations boolean_operations;
extern const Operations null_operations;
extern const Operations any_operations;
extern const Operations any_list_operations;
extern const Operations list_operations;
extern const Operations structure_operations;
extern const Operations kept_structure_operations;
extern const Operations integer_operations;
extern const Operations bit_string_operations;
extern const Operations octet_string_operations;
extern const Operations untagged_string_operations;
extern const Operations character_string_operations;
extern const Operations object_identifier_operations;
extern const Operations any_time_operations;
extern const Operations time_operations;
extern const Operations choice_operations;
extern const Operations string_choice_operations;
extern const Operations unbuilt_operations;

} // namespace kovra::asn1
