/// mz_manual OUTPUT.pdf SOURCE.md...: binds the manual's sources, one language each, into one PDF
/// file.
///
/// The program that opens the manual knows one file, so both languages stand in it, each from a
/// page of its own. Pictures are looked for beside the source that names them.

#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextFrame>
#include <QTextList>
#include <QTextStream>
#include <QTextTable>
#include <QUrl>

namespace {

constexpr int pageWidth = 640; ///< pixels at 96 dpi between the margins of an A4 page

QTextStream &complain()
{
    static QTextStream stream(stderr);
    return stream;
}

/// Loads the pictures that \a document names from \a folder, no wider than a page; false when one
/// is missing, since a manual with a hole in it must not be shipped.
bool placePictures(QTextDocument &document, const QString &folder)
{
    bool complete = true;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            QTextImageFormat format = part.fragment().charFormat().toImageFormat();
            if (!format.isValid())
                continue;
            const QString path = folder + QLatin1Char('/') + format.name();
            const QImage picture(path);
            if (picture.isNull()) {
                complain() << "mz_manual: no picture " << path << Qt::endl;
                complete = false;
                continue;
            }
            // By its own address the picture is found again from the book that the text is put
            // into.
            format.setName(QUrl::fromLocalFile(path).toString());
            format.setWidth(qMin(picture.width(), pageWidth));
            QTextCursor cursor(&document);
            cursor.setPosition(part.fragment().position());
            cursor.setPosition(part.fragment().position() + part.fragment().length(),
                               QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
    }
    return complete;
}

/// Code is marked as of fixed pitch only; the font to print it in is named here.
void setTypewriterParts(const QTextBlock &block)
{
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        if (!part.fragment().charFormat().fontFixedPitch())
            continue;
        QTextCharFormat format;
        format.setFontFamilies({QStringLiteral("DejaVu Sans Mono"), QStringLiteral("monospace")});
        QTextCursor cursor(block);
        cursor.setPosition(part.fragment().position());
        cursor.setPosition(part.fragment().position() + part.fragment().length(),
                           QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
}

/// Gives headings their space and tables a thin frame: the Markdown reader leaves both bare.
void style(QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        QTextBlockFormat format = block.blockFormat();
        if (level > 0) {
            format.setTopMargin(level == 1 ? 0 : 18);
            format.setBottomMargin(8);
        } else if (!block.textList()) {
            format.setBottomMargin(6);
        }
        format.setLineHeight(120, QTextBlockFormat::ProportionalHeight);
        QTextCursor(block).setBlockFormat(format);
        setTypewriterParts(block);
    }
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        if (auto *table = qobject_cast<QTextTable *>(frame)) {
            QTextTableFormat format = table->format();
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderCollapse(true);
            format.setBorderBrush(QColor(0xc8, 0xcc, 0xd4));
            format.setCellPadding(4);
            format.setTopMargin(6);
            format.setBottomMargin(10);
            table->setFormat(format);
        }
    }
}

bool readSource(const QString &path, QTextDocument &document)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        complain() << "mz_manual: " << path << ": " << file.errorString() << Qt::endl;
        return false;
    }
    document.setMarkdown(QString::fromUtf8(file.readAll()), QTextDocument::MarkdownDialectGitHub);
    return placePictures(document, QFileInfo(path).absolutePath());
}

/// Puts \a source behind what \a book holds, on a page of its own.
void append(QTextDocument &book, const QTextDocument &source)
{
    QTextCursor end(&book);
    end.movePosition(QTextCursor::End);
    if (!book.isEmpty()) {
        QTextBlockFormat newPage;
        newPage.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        end.insertBlock(newPage);
    }
    end.insertFragment(QTextDocumentFragment(&source));
}

} // namespace

int main(int argc, char **argv)
{
    // A build has no display, and needs none to set type.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        complain() << "usage: mz_manual OUTPUT.pdf SOURCE.md..." << Qt::endl;
        return 2;
    }

    QTextDocument book;
    QFont font(QStringLiteral("DejaVu Sans"), 10);
    font.setStyleHint(QFont::SansSerif);
    book.setDefaultFont(font);
    for (const QString &path : arguments.mid(2)) {
        QTextDocument source;
        source.setDefaultFont(font);
        if (!readSource(path, source))
            return 1;
        append(book, source);
    }
    style(book);

    QPdfWriter writer(arguments.at(1));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setTitle(QStringLiteral("MZ6218 Power Meter"));
    book.print(&writer);
    return QFileInfo(arguments.at(1)).size() > 0 ? 0 : 1;
}
