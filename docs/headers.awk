# What Doxygen reads in place of a header, line by line.
#
# - A comment that begins with @return begins with "Returns", so that lists of members show it.
# - The text under the @name of a group documents the constants, types and macros of the group that have no comment.

/^ *\/\/\/ @return / && !commented { sub(/@return /, "Returns ") }
/\/\/\/< @return / { sub(/@return /, "Returns ") }

/^ *\/\/\/ @name / { text = ""; heading = 1; print; commented = 1; next }
/^ *\/\/\/ @\{/ { heading = 0; print; commented = 0; next }
/^ *\/\/\/ @\}/ { text = "" }
heading && /\/\/\// { text = text substr($0, index($0, "///") + 3) }

/^(constexpr|inline const|using) .*=|^#define / && text != "" && !commented && !/\/\/\/</ {
    $0 = "/** @details" text " */ " $0
}

{ print; commented = /^ *\/\/\// }
