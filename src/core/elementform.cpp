#include "core/elementform.h"

namespace ArvXml {

ElementForm& ElementForm::sequence(std::initializer_list<Step> steps)
{
    const Marks all = (Marks(1) << steps.size()) - 1;
    Marks mark = 1;
    Marks needed = 0;
    for (const Step& step : steps) {
        const Marks itselfAndThoseAfter = all & ~(mark - 1);
        m_rows.emplace_back(step.tag, mark, itselfAndThoseAfter, step.content);
        if (step.required)
            needed |= mark;
        mark <<= 1;
    }
    return completeWith(needed);
}

ElementForm& ElementForm::listOf(const char* tag, const Content& content, const char* tooFew)
{
    constexpr Marks item = 1;
    m_rows.emplace_back(tag, item, 0, content);
    m_tooFew = QString::fromLatin1(tooFew);
    return completeWith(item);
}

EnumerationTexts::EnumerationTexts(std::initializer_list<const char*> texts)
{
    m_texts.reserve(texts.size() + 1);
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
