# cmake -D registry=FILE -D output=FILE -P type_rows.cmake: the rows of the registry as the command `types` shows them.
file(STRINGS ${registry} rows REGEX "^    {KOVRA_ASN1_TYPE_[A-Z0-9_]+, [a-z]+, [0-9]+, ")
list(TRANSFORM rows REPLACE "^    {KOVRA_ASN1_TYPE_([A-Z0-9_]+), ([a-z]+), ([0-9]+), .*$" "{\"\\1\", \\3, \"\\2\"},\n")
list(JOIN rows "" text)
# Named so by the tool since it has the type.
string(REPLACE "\"DH_OTHER_INFO\"" "\"OTHER_INFO\"" text "${text}")
file(WRITE ${output} "${text}")
