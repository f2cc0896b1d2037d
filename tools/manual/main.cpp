/// mz_manual OUTPUT.pdf SOURCE.md...: binds the manual's sources, one language each, into one PDF
/// file.
///
/// The program that opens the manual knows one file, so both languages stand in it, each from a
/// page of its own. Pictures are looked for beside the source that names them.

#include "manualstyle.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextStream>
#include <QUrl>

namespace {

constexpr int screenDpi = 96;
constexpr int printDpi = 1200;
constexpr QMarginsF pageMargins(20, 18, 20, 18); ///< millimetres
constexpr QSize largestPicture(640, 400);        ///< pixels at screenDpi
constexpr double pictureScale = 0.8;             ///< text on pictures as large as that around them
constexpr int footerHeight = 30;                 ///< pixels at screenDpi

QTextStream &complain()
{
    static QTextStream stream(stderr);
    return stream;
}

QFont textFont()
{
    QFont font;
    font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("WenQuanYi Micro Hei"),
                      QStringLiteral("Microsoft YaHei")});
    font.setPointSizeF(9.5);
    font.setStyleHint(QFont::SansSerif);
    return font;
}

QSize printedSize(const QSize &picture)
{
    const QSize size = picture * pictureScale;
    const bool fits =
        size.width() <= largestPicture.width() && size.height() <= largestPicture.height();
    return fits ? size : size.scaled(largestPicture, Qt::KeepAspectRatio);
}

/// Loads the pictures that \a document names from \a folder; false when one is missing, since a
/// manual with a hole in it must not be shipped.
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
            const QSize size = printedSize(picture.size());
            format.setWidth(size.width());
            format.setHeight(size.height());
            QTextCursor cursor(&document);
            cursor.setPosition(part.fragment().position());
            cursor.setPosition(part.fragment().position() + part.fragment().length(),
                               QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
    }
    return complete;
}

bool readSource(const QString &path, QTextDocument &document)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        complain() << "mz_manual: " << path << ": " << file.errorString() << Qt::endl;
        return false;
    }
    document.setMarkdown(QString::fromUtf8(file.readAll()), QTextDocument::MarkdownDialectGitHub);
    ManualStyle::tidy(document);
    return placePictures(document, QFileInfo(path).absolutePath());
}

/// Puts \a source behind what \a book holds, on a page of its own.
void append(QTextDocument &book, const QTextDocument &source)
{
    QTextCursor end(&book);
    end.movePosition(QTextCursor::End);
    const bool isFirst = book.isEmpty();
    const int start = end.position();
    if (!isFirst)
        end.insertBlock();
    end.insertFragment(QTextDocumentFragment(&source));
    if (isFirst)
        return;
    QTextCursor title(book.findBlock(start + 1));
    QTextBlockFormat newPage;
    newPage.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    title.mergeBlockFormat(newPage);
}

void drawPage(QPainter &painter, QTextDocument &book, int page, double scale)
{
    const QSizeF size = book.pageSize();
    painter.save();
    painter.translate(0.0, -page * size.height());
    // Half a pixel less: pictures at the head of a page reach over its edge by their rounding.
    const QRectF shown(0.0, page * size.height(), size.width(), size.height() - 0.5 * scale);
    painter.setClipRect(shown);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = shown;
    context.palette.setColor(QPalette::Text, Qt::black);
    book.documentLayout()->draw(&painter, context);
    painter.restore();
    QFont small = textFont();
    small.setPointSizeF(8);
    painter.setFont(small);
    painter.drawText(QRectF(0.0, size.height(), size.width(), footerHeight * scale),
                     Qt::AlignHCenter | Qt::AlignBottom, QString::number(page + 1));
}

bool print(QTextDocument &book, const QString &path)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(pageMargins, QPageLayout::Millimeter);
    writer.setResolution(printDpi);
    writer.setTitle(QStringLiteral("MZ6218 Power Meter"));
    const double scale = double(printDpi) / screenDpi;
    book.setDocumentMargin(0.0);
    book.documentLayout()->setPaintDevice(&writer);
    book.setPageSize(QSizeF(writer.width(), writer.height() - footerHeight * scale));
    ManualStyle::keepTogether(book, scale);

    QPainter painter(&writer);
    for (int page = 0; page < book.pageCount(); ++page) {
        if (page > 0)
            writer.newPage();
        drawPage(painter, book, page, scale);
    }
    return painter.end() && QFileInfo(path).size() > 0;
}

} // namespace

int main(int argc, char **argv)
{
#ifndef Q_OS_WIN
    // A build has no display, and needs none to set type. On Windows there is always one, and this
    // platform has no fonts there.
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    QGuiApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        complain() << "usage: mz_manual OUTPUT.pdf SOURCE.md..." << Qt::endl;
        return 2;
    }
    for (const char32_t letter : {U'A', U'中'}) {
        if (QFontMetrics(textFont()).inFontUcs4(letter))
            continue;
        complain() << "mz_manual: no font for " << (letter == U'A' ? "English" : "Chinese")
                   << "; install fonts-dejavu-core and fonts-wqy-microhei" << Qt::endl;
        return 1;
    }

    QTextDocument book;
    book.setDefaultFont(textFont());
    for (const QString &path : arguments.mid(2)) {
        QTextDocument source;
        source.setDefaultFont(textFont());
        if (!readSource(path, source))
            return 1;
        append(book, source);
    }
    ManualStyle::apply(book);
    return print(book, arguments.at(1)) ? 0 : 1;
}
