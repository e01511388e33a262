// The case-blind order of all Text and Memo fields: by Unicode code points of the upper-case forms.
// Blanks and punctuation count as they stand.
#pragma once

#include <string_view>

struct sqlite3;

namespace storage {

inline constexpr const char* caseBlindCollation = "CASEBLIND";

void registerCaseBlindCollation(sqlite3* connection);

// Negative, 0 or positive, on UTF-8 texts.
int compareCaseBlind(std::string_view a, std::string_view b);

}  // namespace storage
