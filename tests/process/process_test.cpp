#include <QtTest/QtTest>

#include <dlfcn.h>

/// \file
/// What can only be seen of a whole program: how it ends, and what happens when the library is unloaded.

class ProcessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void elementsInTheLastMoments_data();
    void elementsInTheLastMoments();
    void textsOutliveAPlugin();
};

void ProcessTest::elementsInTheLastMoments_data()
{
    QTest::addColumn<QString>("who");
    QTest::newRow("the destructor of a global") << QStringLiteral("global");
    QTest::newRow("the end of a thread") << QStringLiteral("thread");
    QTest::newRow("a thread that outlives main()") << QStringLiteral("detached");
}

void ProcessTest::elementsInTheLastMoments()
{
    QFETCH(QString, who);
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(LAST_MOMENTS), {who});
    QVERIFY(program.waitForFinished(-1));
    QCOMPARE(program.readAll(), QByteArray("as ever\n"));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

void ProcessTest::textsOutliveAPlugin()
{
#ifndef UNLOADED
    QSKIP("The library is static: its constants go with whatever links it.");
#else
    void* const plugin = dlopen(UNLOADED, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(plugin, dlerror());
    const auto texts = reinterpret_cast<void (*)(QString*, QString*, QString*)>(dlsym(plugin, "textsOfTheLibrary"));
    QVERIFY(texts);
    QString unit;
    QString version;
    QString problem;
    texts(&unit, &version, &problem);
    QCOMPARE(dlclose(plugin), 0);
    QVERIFY(!dlopen(UNLOADED, RTLD_NOW | RTLD_NOLOAD)); // the plugin is gone, the library is not
    QCOMPARE(unit, QStringLiteral("dBm"));
    QCOMPARE(version, QStringLiteral("1.0"));
    QCOMPARE(problem, QStringLiteral("+++ in XmlDBMType Begin:\nIllegal decibel.\n--- in XmlDBMType End"));
#endif
}

QTEST_APPLESS_MAIN(ProcessTest)
#include "process_test.moc"
