#include "support/samples.h"

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

/// \file
/// Uses the elements of every class in the last moments of a program, after everything that is destroyed at its end has
/// been. The argument says who does: "global", the destructor of a global object; "thread", the end of a thread;
/// "detached", a thread that outlives main(). The program ends with 0 and prints "as ever" when all is as ever.

using Samples::ElementClass;
using Samples::Sample;

namespace {

/// Samples that are never destroyed, unlike those of the header.
const std::vector<ElementClass>& samples()
{
    static const auto& kept = *new std::vector<ElementClass>(Samples::classes());
    return kept;
}

/// Makes, reads, judges, explains, writes, copies and resets elements of all classes; ends the program when anything
/// is not as the samples say.
void useEverything()
{
    for (const ElementClass& elementClass : samples()) {
        for (const Sample& sample : elementClass.samples) {
            const Samples::Element element = Samples::newFrom(elementClass, sample);
            const Samples::Element copy = elementClass.copy(*element);
            const bool isAsEver = copy->isValid() == sample.valid && copy->syntaxError() == sample.problems
                && ElementTest::written(*element, Samples::tagOf(sample)) == sample.expected();
            if (!isAsEver) {
                std::printf("%s: %s\n", qUtf8Printable(elementClass.name), sample.name);
                std::_Exit(1);
            }
            Samples::reset(*element);
        }
    }
    if (ArvXml::XmlPropModelP1546Type().kFactor() != 1.3333 || !ArvXml::XmlOrderDef::createValidInstance().isValid()) {
        std::puts("a default, or an order id");
        std::_Exit(1);
    }
}

/// What Qt itself destroys at the end was used before these were made, and so goes after them.
struct UsesQtFirst {
    UsesQtFirst()
    {
        QString xml;
        QXmlStreamWriter(&xml).writeTextElement(QStringLiteral("Tag"), QString());
        QXmlStreamReader(xml).readNext();
        samples();
    }
};

struct AtTheEnd : UsesQtFirst {
    ~AtTheEnd()
    {
        if (!isWanted)
            return;
        useEverything();
        useEverything();
        std::puts("as ever");
        std::fflush(stdout);
    }
    bool isWanted = false;
};

AtTheEnd& globalUser()
{
    static AtTheEnd user;
    return user;
}

void useAtTheEndOfAThread()
{
    std::thread([] {
        static thread_local AtTheEnd user;
        user.isWanted = true;
        useEverything();
    }).join();
}

// Never destroyed, so that they can be waited for at the very end.
struct Meeting {
    std::mutex mutex;
    std::condition_variable changed;
    enum { Running, Ending, Over } state = Running;

    void set(decltype(state) next)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        state = next;
        changed.notify_all();
    }
    void waitFor(decltype(state) awaited)
    {
        std::unique_lock<std::mutex> lock(mutex);
        changed.wait(lock, [&] { return state == awaited; });
    }
};

Meeting& meeting()
{
    static auto& meeting = *new Meeting;
    return meeting;
}

/// Holds the end of the program up until the thread has used everything.
struct WaitsForTheThread : UsesQtFirst {
    ~WaitsForTheThread()
    {
        if (!isWanted)
            return;
        meeting().set(Meeting::Ending);
        meeting().waitFor(Meeting::Over);
        std::puts("as ever");
        std::fflush(stdout);
    }
    bool isWanted = false;
};

WaitsForTheThread& waitingUser()
{
    static WaitsForTheThread user;
    return user;
}

void useInADetachedThread()
{
    waitingUser().isWanted = true;
    std::thread([] {
        meeting().waitFor(Meeting::Ending);
        useEverything();
        meeting().set(Meeting::Over);
    }).detach();
    useEverything();
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray who(argc == 2 ? argv[1] : "");
    if (who == "global") {
        globalUser().isWanted = true; // made before the tables, and so destroyed after them
        useEverything();
    } else if (who == "thread") {
        useAtTheEndOfAThread();
    } else if (who == "detached") {
        useInADetachedThread();
    } else {
        std::fputs("Usage: lastmoments global|thread|detached\n", stderr);
        return 2;
    }
    return 0;
}
