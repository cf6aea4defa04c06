#pragma once

namespace ArvXml {

/// The maximum length of a text, and the problems with its length.
struct TextRules {
    int max;
    const char* tooShort;
    const char* tooLong;
};

} // namespace ArvXml
