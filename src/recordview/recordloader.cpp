#include "recordview/recordloader.h"

RecordLoader::RecordLoader(const QStringList &paths, QObject *parent)
    : QThread(parent)
    , m_paths(paths)
    , m_reader(std::make_unique<RecordReader>())
{}

RecordLoader::~RecordLoader()
{
    cancel();
    wait();
}

void RecordLoader::run()
{
    int told = -1;
    m_outcome = m_reader->open(m_paths, [this, &told](double done) {
        const int share = static_cast<int>(done * 1000.0);
        if (share != told)
            emit progressed(share);
        told = share;
        return !m_isCancelled;
    });
}
