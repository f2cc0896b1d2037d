#pragma once

#include <QSplitter>

/// A splitter whose handles take the focus and are moved with the arrow keys.
class KeyboardSplitter : public QSplitter
{
    Q_OBJECT

public:
    using QSplitter::QSplitter;

protected:
    QSplitterHandle *createHandle() override;
};
