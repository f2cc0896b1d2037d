#include "storage/filewriting.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

#ifdef Q_OS_UNIX
/// While it lives no file of this process grows beyond some bytes, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_former); }
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_former{};
};
#endif

} // namespace

class TestFileWriting : public QObject
{
    Q_OBJECT

private slots:
    void replacesFiles()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("曲线.csv"));
        QCOMPARE(replaceFile(path, "a longer first text\n").kind, FileOutcome::Kind::Written);
        QCOMPARE(replaceFile(path, "short\n").kind, FileOutcome::Kind::Written);
        QCOMPARE(contentOf(path), QByteArray("short\n"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }

    void refusesPlaces()
    {
        const QTemporaryDir folder;
        for (const QString &place :
             {folder.path(), folder.filePath(QStringLiteral("nowhere/F1.csv"))}) {
            const FileOutcome outcome = replaceFile(place, "text");
            QCOMPARE(outcome.kind, FileOutcome::Kind::OpenFailed);
            QVERIFY(!outcome.reason.isEmpty());
        }
    }

    void keepsTheFormerFileWhenTheDiskIsFull()
    {
#ifdef Q_OS_UNIX
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("curve.csv"));
        QCOMPARE(replaceFile(path, "good\n").kind, FileOutcome::Kind::Written);
        FileOutcome outcome;
        {
            const FullDisk full(20000);
            outcome = replaceFile(path, QByteArray(100000, 'x'));
        }
        QCOMPARE(outcome.kind, FileOutcome::Kind::WriteFailed);
        QVERIFY(!outcome.reason.isEmpty());
        QCOMPARE(contentOf(path), QByteArray("good\n"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList(QStringLiteral("curve.csv")));
#else
        QSKIP("the size of files cannot be limited here");
#endif
    }

    void writesIntoDevices()
    {
        const QString device = QStringLiteral("/dev/full");
        if (!QFile::exists(device))
            QSKIP("there is no device that is always full");
        QCOMPARE(replaceFile(device, "text").kind, FileOutcome::Kind::WriteFailed);
        QVERIFY(!QFileInfo(device).isFile());
    }
};

MZ_TEST_GUILESS_MAIN(TestFileWriting)
#include "tst_filewriting.moc"
