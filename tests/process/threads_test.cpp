#include "support/samples.h"

#include <atomic>
#include <functional>
#include <thread>

/// \file
/// Elements in several threads at once: each thread with elements of its own, and all with shared ones that nobody
/// changes. The checker `threads` of scripts/check runs it under ThreadSanitizer.

using namespace ArvXml;
using Samples::Element;
using Samples::ElementClass;
using Samples::Sample;

namespace {

constexpr int threadCount = 4;

/// Runs \a work in several threads that set out together, and returns what they found wrong.
QStringList inThreads(const std::function<QStringList()>& work)
{
    std::atomic<int> waiting = threadCount;
    std::vector<QStringList> found(threadCount);
    std::vector<std::thread> threads;
    for (QStringList& problems : found) {
        threads.emplace_back([&] {
            --waiting;
            while (waiting > 0)
                std::this_thread::yield();
            problems = work();
        });
    }
    QStringList all;
    for (int i = 0; i < threadCount; ++i) {
        threads[static_cast<std::size_t>(i)].join();
        all += found[static_cast<std::size_t>(i)];
    }
    return all;
}

/// An element and all that its const operations show.
struct Shared {
    const ElementClass* elementClass;
    const Sample* sample;
    Element element;
    QString tag;
};

} // namespace

class ThreadsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ownElements();
    void sharedElements();
};

/// Comes first: every table is made when it is first used, here by all threads at once.
void ThreadsTest::ownElements()
{
    const std::vector<ElementClass>& classes = Samples::classes();
    const QStringList problems = inThreads([&] {
        QStringList wrong;
        for (const ElementClass& elementClass : classes) {
            for (const Sample& sample : elementClass.samples) {
                const Element element = Samples::newFrom(elementClass, sample);
                if (element->syntaxError() != sample.problems || element->isValid() != sample.valid
                    || ElementTest::written(*element, Samples::tagOf(sample)) != sample.expected())
                    wrong.append(elementClass.name);
                Samples::reset(*element);
            }
        }
        return wrong;
    });
    QCOMPARE(problems, QStringList());
}

void ThreadsTest::sharedElements()
{
    std::vector<Shared> shared;
    for (const ElementClass& elementClass : Samples::classes()) {
        shared.push_back({&elementClass, nullptr, elementClass.create(), QStringLiteral("Tag")});
        for (const Sample& sample : elementClass.samples)
            shared.push_back({&elementClass, &sample, Samples::newFrom(elementClass, sample), Samples::tagOf(sample)});
    }
    const QStringList problems = inThreads([&] {
        QStringList wrong;
        for (const Shared& one : shared) {
            const IXmlElement& element = *one.element;
            const QString written = ElementTest::written(element, one.tag);
            const Element copy = one.elementClass->copy(element);
            const Element assigned = one.elementClass->create();
            one.elementClass->assign(*assigned, element);
            const QString unseen = one.elementClass->unseen(element); // what getters show
            QString debugged;
            QDebug(&debugged) << dynamic_cast<const XmlElementBase&>(element);
            if (const auto* root = dynamic_cast<const XmlRespRoot*>(&element); root && !root->timestamp().isValid())
                wrong.append(QStringLiteral("no timestamp"));
            const bool isAsEver = copy->isValid() == element.isValid() && !debugged.isEmpty()
                && ElementTest::written(*copy, one.tag) == written
                && ElementTest::written(*assigned, one.tag) == written
                && (!one.sample
                    || (element.isValid() == one.sample->valid && written == one.sample->expected()
                        && unseen == one.sample->unseen && copy->syntaxError() == one.sample->problems));
            if (!isAsEver)
                wrong.append(one.elementClass->name);
        }
        return wrong;
    });
    QCOMPARE(problems, QStringList());
}

QTEST_APPLESS_MAIN(ThreadsTest)
#include "threads_test.moc"
