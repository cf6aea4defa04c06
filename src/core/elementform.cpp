#include "core/elementform.h"

namespace ArvXml {

ElementForm& ElementForm::sequence(std::initializer_list<Step> steps)
{
    const Marks all = (Marks(1) << steps.size()) - 1;
    Marks mark = 1;
    Marks needed = all;
    for (const Step& step : steps) {
        const Marks itselfAndThoseAfter = all & ~(mark - 1);
        m_rows.emplace_back(step.tag, mark, itselfAndThoseAfter, step.content);
        if (!step.required)
            needed &= ~mark;
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

} // namespace ArvXml
