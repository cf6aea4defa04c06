#include "core/enumeration.h"

namespace ArvXml {

EnumerationTexts::EnumerationTexts(std::initializer_list<const char*> texts)
{
    m_texts.push_back(QStringLiteral("UNDEFINED"));
    for (const char* text : texts)
        m_texts.push_back(QString::fromLatin1(text));
}

const QString& EnumerationTexts::text(int value) const
{
    const auto index = static_cast<std::size_t>(value);
    return value > 0 && index < m_texts.size() ? m_texts[index] : m_texts.front();
}

} // namespace ArvXml
