#include "common/framing.h"

#include <utility>

QByteArray framed(const QByteArray& document)
{
    return document + '\0';
}

QVector<Frame> Framing::take(const QByteArray& bytes)
{
    using Size = decltype(bytes.size()); // each Qt counts in a type of its own
    QVector<Frame> complete;
    Size begin = 0;
    while (begin < bytes.size()) {
        const Size nul = bytes.indexOf('\0', begin);
        const Size end = nul < 0 ? bytes.size() : nul;
        if (end - begin > maxLength - m_frame.document.size())
            m_frame = {QByteArray(), true};
        if (!m_frame.tooLong)
            m_frame.document.append(bytes.constData() + begin, end - begin);
        if (nul >= 0)
            complete.append(std::exchange(m_frame, Frame()));
        begin = end + 1;
    }
    return complete;
}
