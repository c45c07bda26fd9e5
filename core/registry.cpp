#include "core/registry.hpp"

#include <array>
#include <utility>

#include "core/descriptors.hpp"
#include "core/list.hpp"
#include "core/structure.hpp"
#include "kovra/asn1_types.h"

namespace kovra::asn1 {

namespace {

// Rows whose structure is not built yet only refuse.
Site here(int32_t line = __builtin_LINE()) {
    return {"ASN1", line};
}
bool holds_nothing(const Type &, const Value &) {
    return false;
}
int32_t no_content_length(const Type &, Value *, Measure) {
    return unknown;
}
Result refuse_encode_content(Encoder &encoder, const Type &, Value *, int32_t) {
    return encoder.fail(here(), code::unsupported_encode);
}
Result refuse_encode(Encoder &encoder, const Type &, Value *) {
    return encoder.fail(here(), code::unsupported_encode);
}
Result refuse_decode(Decoder &decoder, const Type &, Value *&) {
    return decoder.fail(here(), code::unsupported_decode);
}

} // namespace

constexpr Operations unbuilt_operations = {
    .holds = holds_nothing,
    .content_length = no_content_length,
    .encode_content = refuse_encode_content,
    .encode = refuse_encode,
    .decode_content = refuse_decode_content,
    .decode = refuse_decode,
    .records_reserve = [](size_t) { return size_t{0}; },
};

namespace {

constexpr ListShape list_of_any = {KOVRA_ASN1_TYPE_ANY};
constexpr ListShape list_of_any_1 = {KOVRA_ASN1_TYPE_ANY, ListReading::tagged, true};

struct Row {
    Form form;
    uint8_t tag;
    int32_t base;
    const Operations *operations;
    const void *shape = nullptr;
};

constexpr Form primitive = Form::primitive;
constexpr Form constructed = Form::constructed;
constexpr Form either = Form::either;

constexpr const Operations *unbuilt = &unbuilt_operations;

// clang-format off
// What a row holds stands in kovra/asn1_types.h. The bases are stored values: from row 56 on many are those of the row
// before, which failures report just so, and three lie outside the table of texts.
constexpr Row rows[type_count] = {
    /*   0 */ {primitive, 0, 0, &end_of_contents_operations},
    /*   1 */ {primitive, 1, 0x1020d, &boolean_operations},
    /*   2 */ {primitive, 2, 0x1020f, &integer_operations},
    /*   3 */ {either, 3, 0x10213, &bit_string_operations},
    /*   4 */ {either, 4, 0x10218, &octet_string_operations},
    /*   5 */ {primitive, 5, 0x10231, &null_operations},
    /*   6 */ {primitive, 6, 0x10233, &object_identifier_operations},
    /*   7 */ {primitive, 10, 0x10211, &integer_operations},
    /*   8 */ {either, 0, 0x10216, &untagged_string_operations},
    /*   9 */ {either, 12, 0x1021b, &character_string_operations},
    /*  10 */ {either, 18, 0x1021d, &character_string_operations},
    /*  11 */ {either, 19, 0x1021f, &character_string_operations},
    /*  12 */ {either, 20, 0x10221, &character_string_operations},
    /*  13 */ {either, 21, 0x10223, &character_string_operations},
    /*  14 */ {either, 22, 0x10225, &character_string_operations},
    /*  15 */ {either, 25, 0x10227, &character_string_operations},
    /*  16 */ {either, 26, 0x10229, &character_string_operations},
    /*  17 */ {either, 27, 0x1022b, &character_string_operations},
    /*  18 */ {either, 28, 0x1022d, &character_string_operations},
    /*  19 */ {either, 30, 0x1022f, &character_string_operations},
    /*  20 */ {either, 0, 0x10238, &any_time_operations},
    /*  21 */ {either, 23, 0x1023a, &time_operations},
    /*  22 */ {either, 24, 0x1023c, &time_operations},
    /*  23 */ {either, 0, 0x10235, &any_operations},
    /*  24 */ {constructed, 16, 0x10270, &any_list_operations, &list_of_any},
    /*  25 */ {constructed, 16, 0x10270, &any_list_operations, &list_of_any_1},
    /*  26 */ {constructed, 17, 0x10272, &any_list_operations, &list_of_any},
    /*  27 */ {constructed, 17, 0x10272, &any_list_operations, &list_of_any_1},
    /*  28 */ {constructed, 16, 0x1023e, unbuilt},
    /*  29 */ {constructed, 16, 0x10246, unbuilt},
    /*  30 */ {constructed, 16, 0x10275, unbuilt},
    /*  31 */ {constructed, 17, 0x10248, unbuilt},
    /*  32 */ {constructed, 16, 0x1024a, unbuilt},
    /*  33 */ {constructed, 16, 0x1024c, unbuilt},
    /*  34 */ {constructed, 16, 0x1024e, unbuilt},
    /*  35 */ {constructed, 16, 0x10250, unbuilt},
    /*  36 */ {constructed, 16, 0x10252, unbuilt},
    /*  37 */ {constructed, 16, 0x10254, unbuilt},
    /*  38 */ {constructed, 16, 0x10256, unbuilt},
    /*  39 */ {constructed, 16, 0x10258, unbuilt},
    /*  40 */ {constructed, 16, 0x1025e, unbuilt},
    /*  41 */ {constructed, 16, 0x10260, unbuilt},
    /*  42 */ {constructed, 16, 0x1027b, unbuilt},
    /*  43 */ {constructed, 16, 0x10262, unbuilt},
    /*  44 */ {constructed, 17, 0x10264, unbuilt},
    /*  45 */ {constructed, 16, 0x10266, unbuilt},
    /*  46 */ {constructed, 16, 0x10268, unbuilt},
    /*  47 */ {either, 0, 0x10284, unbuilt},
    /*  48 */ {constructed, 16, 0x10286, unbuilt},
    /*  49 */ {constructed, 16, 0x0002f, unbuilt},
    /*  50 */ {constructed, 16, 0x1028a, unbuilt},
    /*  51 */ {constructed, 16, 0x1028c, unbuilt},
    /*  52 */ {either, 0, 0x1028e, unbuilt},
    /*  53 */ {constructed, 16, 0x10290, unbuilt},
    /*  54 */ {constructed, 16, 0x10292, unbuilt},
    /*  55 */ {constructed, 16, 0x10294, unbuilt},
    /*  56 */ {constructed, 16, 0x10294, unbuilt},
    /*  57 */ {constructed, 16, 0x10296, unbuilt},
    /*  58 */ {constructed, 16, 0x10298, unbuilt},
    /*  59 */ {constructed, 16, 0x1029a, unbuilt},
    /*  60 */ {constructed, 16, 0x1029c, unbuilt},
    /*  61 */ {constructed, 8, 0x1029e, unbuilt},
    /*  62 */ {constructed, 16, 0x102a0, unbuilt},
    /*  63 */ {either, 0, 0x102a2, unbuilt},
    /*  64 */ {constructed, 16, 0x102a4, unbuilt},
    /*  65 */ {constructed, 16, 0x102a6, unbuilt},
    /*  66 */ {constructed, 16, 0x102a8, unbuilt},
    /*  67 */ {constructed, 16, 0x102aa, unbuilt},
    /*  68 */ {constructed, 16, 0x102ac, unbuilt},
    /*  69 */ {constructed, 16, 0x102b0, unbuilt},
    /*  70 */ {constructed, 16, 0x102b2, unbuilt},
    /*  71 */ {either, 0, 0x102b4, unbuilt},
    /*  72 */ {constructed, 16, 0x102b8, unbuilt},
    /*  73 */ {constructed, 16, 0x102ba, unbuilt},
    /*  74 */ {constructed, 16, 0x102be, unbuilt},
    /*  75 */ {constructed, 16, 0x102c0, unbuilt},
    /*  76 */ {constructed, 16, 0x102c2, unbuilt},
    /*  77 */ {constructed, 16, 0x102c4, unbuilt},
    /*  78 */ {constructed, 16, 0x102c6, unbuilt},
    /*  79 */ {constructed, 16, 0x102c8, unbuilt},
    /*  80 */ {constructed, 16, 0x102ca, unbuilt},
    /*  81 */ {constructed, 16, 0x102cc, unbuilt},
    /*  82 */ {constructed, 16, 0x102cf, unbuilt},
    /*  83 */ {constructed, 0, 0x102d1, unbuilt},
    /*  84 */ {constructed, 16, 0x102d3, unbuilt},
    /*  85 */ {constructed, 16, 0x102d5, unbuilt},
    /*  86 */ {constructed, 16, 0x102d9, unbuilt},
    /*  87 */ {constructed, 16, 0x102db, unbuilt},
    /*  88 */ {constructed, 16, 0x102df, unbuilt},
    /*  89 */ {constructed, 16, 0x102e1, unbuilt},
    /*  90 */ {primitive, 13, 0x102f0, &object_identifier_operations},
    /*  91 */ {constructed, 16, 0x102f3, unbuilt},
    /*  92 */ {constructed, 16, 0x1025a, unbuilt},
    /*  93 */ {constructed, 16, 0x102f5, unbuilt},
    /*  94 */ {constructed, 16, 0x102f7, unbuilt},
    /*  95 */ {constructed, 16, 0x102f9, unbuilt},
    /*  96 */ {constructed, 16, 0x102fb, unbuilt},
    /*  97 */ {constructed, 16, 0x102fd, unbuilt},
    /*  98 */ {either, 0, 0x102ff, unbuilt},
    /*  99 */ {constructed, 16, 0x10306, unbuilt},
    /* 100 */ {constructed, 16, 0x10308, unbuilt},
    /* 101 */ {constructed, 16, 0x1030a, unbuilt},
    /* 102 */ {constructed, 16, 0x1030c, unbuilt},
    /* 103 */ {constructed, 16, 0x1030e, unbuilt},
    /* 104 */ {constructed, 16, 0x10310, unbuilt},
    /* 105 */ {constructed, 16, 0x10314, unbuilt},
    /* 106 */ {constructed, 16, 0x10317, unbuilt},
    /* 107 */ {constructed, 16, 0x10319, unbuilt},
    /* 108 */ {constructed, 16, 0x1031b, unbuilt},
    /* 109 */ {constructed, 16, 0x1031d, unbuilt},
    /* 110 */ {constructed, 16, 0x1031f, unbuilt},
    /* 111 */ {constructed, 16, 0x10321, unbuilt},
    /* 112 */ {constructed, 16, 0x10323, unbuilt},
    /* 113 */ {constructed, 16, 0x10325, unbuilt},
    /* 114 */ {constructed, 16, 0x10325, unbuilt},
    /* 115 */ {constructed, 16, 0x10327, unbuilt},
    /* 116 */ {constructed, 16, 0x10329, unbuilt},
    /* 117 */ {constructed, 16, 0x1032b, unbuilt},
    /* 118 */ {constructed, 16, 0x1032d, unbuilt},
    /* 119 */ {constructed, 16, 0x1032f, unbuilt},
    /* 120 */ {constructed, 16, 0x10331, unbuilt},
    /* 121 */ {constructed, 16, 0x10333, unbuilt},
    /* 122 */ {constructed, 16, 0x10335, unbuilt},
    /* 123 */ {either, 0, 0x10337, unbuilt},
    /* 124 */ {constructed, 16, 0x10339, unbuilt},
    /* 125 */ {constructed, 17, 0x1033b, unbuilt},
    /* 126 */ {constructed, 17, 0x1033d, unbuilt},
    /* 127 */ {constructed, 16, 0x1033f, unbuilt},
    /* 128 */ {constructed, 16, 0x10341, unbuilt},
    /* 129 */ {either, 0, 0x10349, unbuilt},
    /* 130 */ {either, 0, 0x1034b, unbuilt},
    /* 131 */ {constructed, 17, 0x1034d, unbuilt},
    /* 132 */ {constructed, 17, 0x1034f, unbuilt},
    /* 133 */ {constructed, 16, 0x10351, unbuilt},
    /* 134 */ {constructed, 16, 0x10353, unbuilt},
    /* 135 */ {constructed, 16, 0x10242, unbuilt},
    /* 136 */ {constructed, 16, 0x10277, unbuilt},
    /* 137 */ {constructed, 16, 0x102ae, unbuilt},
    /* 138 */ {constructed, 16, 0x102b6, unbuilt},
    /* 139 */ {constructed, 16, 0x102bc, unbuilt},
    /* 140 */ {constructed, 16, 0x1025c, unbuilt},
    /* 141 */ {constructed, 17, 0x10240, unbuilt},
    /* 142 */ {constructed, 17, 0x10244, unbuilt},
    /* 143 */ {constructed, 17, 0x10279, unbuilt},
    /* 144 */ {constructed, 16, 0x10301, unbuilt},
    /* 145 */ {constructed, 16, 0x10303, unbuilt},
    /* 146 */ {either, 0, 0x10312, unbuilt},
    /* 147 */ {constructed, 16, 0x10356, unbuilt},
    /* 148 */ {constructed, 16, 0x10358, unbuilt},
    /* 149 */ {constructed, 16, 0x1035a, unbuilt},
    /* 150 */ {constructed, 16, 0x1035c, unbuilt},
    /* 151 */ {constructed, 16, 0x10360, unbuilt},
    /* 152 */ {either, 0, 0x10361, unbuilt},
    /* 153 */ {constructed, 16, 0x10363, unbuilt},
    /* 154 */ {constructed, 16, 0x10365, unbuilt},
    /* 155 */ {either, 0, 0x10367, unbuilt},
    /* 156 */ {constructed, 16, 0x10369, unbuilt},
    /* 157 */ {constructed, 16, 0x1036b, unbuilt},
    /* 158 */ {constructed, 16, 0x1036d, unbuilt},
    /* 159 */ {constructed, 16, 0x0009f, unbuilt},
    /* 160 */ {constructed, 16, 0x10373, unbuilt},
    /* 161 */ {constructed, 16, 0x10375, unbuilt},
    /* 162 */ {either, 0, 0x10377, unbuilt},
    /* 163 */ {constructed, 17, 0x10379, unbuilt},
    /* 164 */ {constructed, 16, 0x1037b, unbuilt},
    /* 165 */ {constructed, 16, 0x1037d, unbuilt},
    /* 166 */ {constructed, 16, 0x1037f, unbuilt},
    /* 167 */ {constructed, 16, 0x10381, unbuilt},
    /* 168 */ {constructed, 16, 0x10383, unbuilt},
    /* 169 */ {constructed, 16, 0x10385, unbuilt},
    /* 170 */ {constructed, 16, 0x10387, unbuilt},
    /* 171 */ {constructed, 16, 0x10389, unbuilt},
    /* 172 */ {constructed, 16, 0x1038d, unbuilt},
    /* 173 */ {constructed, 16, 0x1038f, unbuilt},
    /* 174 */ {constructed, 16, 0x10391, unbuilt},
    /* 175 */ {constructed, 16, 0x000af, unbuilt},
    /* 176 */ {either, 0, 0x10395, unbuilt},
    /* 177 */ {constructed, 16, 0x10397, unbuilt},
    /* 178 */ {either, 0, 0x10397, unbuilt},
    /* 179 */ {constructed, 16, 0x1039b, unbuilt},
    /* 180 */ {constructed, 16, 0x1039d, unbuilt},
    /* 181 */ {constructed, 16, 0x1039f, unbuilt},
    /* 182 */ {constructed, 16, 0x103a1, unbuilt},
    /* 183 */ {constructed, 16, 0x103a3, unbuilt},
    /* 184 */ {constructed, 16, 0x103a5, unbuilt},
    /* 185 */ {constructed, 16, 0x103a7, unbuilt},
    /* 186 */ {constructed, 16, 0x103a9, unbuilt},
    /* 187 */ {constructed, 16, 0x103ab, unbuilt},
    /* 188 */ {constructed, 16, 0x103ad, unbuilt},
    /* 189 */ {constructed, 16, 0x103af, unbuilt},
    /* 190 */ {constructed, 16, 0x103b1, unbuilt},
    /* 191 */ {constructed, 16, 0x103b3, unbuilt},
    /* 192 */ {constructed, 16, 0x103b5, unbuilt},
    /* 193 */ {constructed, 16, 0x103b7, unbuilt},
    /* 194 */ {constructed, 16, 0x103b9, unbuilt},
    /* 195 */ {constructed, 16, 0x103bb, unbuilt},
    /* 196 */ {constructed, 16, 0x103bd, unbuilt},
    /* 197 */ {constructed, 16, 0x103bf, unbuilt},
    /* 198 */ {constructed, 16, 0x103c1, unbuilt},
    /* 199 */ {constructed, 16, 0x103c3, unbuilt},
    /* 200 */ {constructed, 16, 0x103c3, unbuilt},
    /* 201 */ {either, 0, 0x103c7, unbuilt},
    /* 202 */ {constructed, 16, 0x103c9, unbuilt},
    /* 203 */ {constructed, 16, 0x103cb, unbuilt},
    /* 204 */ {constructed, 16, 0x103cd, unbuilt},
    /* 205 */ {constructed, 16, 0x103cf, unbuilt},
    /* 206 */ {either, 0, 0x103d1, unbuilt},
    /* 207 */ {constructed, 16, 0x103d3, unbuilt},
};
// clang-format on

template <size_t... numbers> constexpr auto numbered(std::index_sequence<numbers...>) {
    return std::array<Type, sizeof...(numbers)>{Type{static_cast<uint8_t>(numbers), rows[numbers].form,
                                                     rows[numbers].tag, rows[numbers].base, rows[numbers].operations,
                                                     rows[numbers].shape}...};
}

constexpr auto registry = numbered(std::make_index_sequence<type_count>());

} // namespace

const Type &row(uint32_t number) {
    return registry[number];
}

} // namespace kovra::asn1
