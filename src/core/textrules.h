#pragma once

namespace ArvXml {

/// How long a text may be, and what is said when it is not.
struct TextRules {
    int max;
    const char* tooShort;
    const char* tooLong;
};

} // namespace ArvXml
