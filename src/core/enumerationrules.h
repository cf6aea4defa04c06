#pragma once

#include "core/neverdestroyed.h"
#include "core/texts.h"

#include <QtCore/QString>

#include <initializer_list>
#include <vector>

namespace ArvXml {

/// The texts of an enumeration, starting with that of value 1.
class EnumerationTexts {
public:
    explicit EnumerationTexts(std::initializer_list<const char*> texts);

    /// The value of \a text, 0 if it is not one of the texts.
    template <typename Text>
    int value(const Text& text) const
    {
        for (std::size_t i = 1; i < m_texts.size(); ++i) {
            if (isSameText(text, m_texts[i]))
                return static_cast<int>(i);
        }
        return 0;
    }
    /// The text of \a value, "UNDEFINED" if it has none.
    const QString& text(int value) const;

private:
    std::vector<QString> m_texts;
};

/// What is specific to an enumeration.
struct EnumerationRules {
    EnumerationTexts texts;
    const char* unknownText;    ///< the error for other texts
    const char* undefinedError; ///< the problem of value 0
};

} // namespace ArvXml
