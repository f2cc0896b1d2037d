#include "manualstyle.h"

#include <QAbstractTextDocumentLayout>
#include <QColor>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>

#include <algorithm>
#include <cmath>

namespace {

constexpr QRgb frameColor = 0xffc8ccd4;
constexpr QRgb codeColor = 0xfff2f4f7;
constexpr QRgb headerColor = 0xffe8ecf2;
constexpr double headingRoom = 150.0; ///< pixels that a heading needs with what follows
constexpr double tableRoom = 90.0;    ///< pixels that the first rows of a table need
constexpr int shortTable = 6;         ///< rows up to which a table is not cut

bool isCode(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    return format.hasProperty(QTextFormat::BlockCodeFence) ||
           format.hasProperty(QTextFormat::BlockCodeLanguage);
}

QList<QTextTable *> tablesOf(const QTextDocument &document)
{
    QList<QTextTable *> tables;
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        if (auto *table = qobject_cast<QTextTable *>(frame))
            tables.append(table);
    }
    return tables;
}

/// Whether both blocks stand in the same cell, or both in the running text.
bool areNeighbours(const QTextBlock &one, const QTextBlock &other)
{
    const auto place = [](const QTextBlock &block) {
        const QTextCursor cursor(block);
        const QTextTable *table = cursor.currentTable();
        const int cell = table ? table->cellAt(cursor).firstPosition() : -1;
        return qMakePair(cursor.currentFrame(), cell);
    };
    return one.isValid() && other.isValid() && place(one) == place(other);
}

void setCharacters(const QTextBlock &block, const QTextCharFormat &format)
{
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(format);
    cursor.mergeBlockCharFormat(format);
}

QTextCharFormat typewriter()
{
    QTextCharFormat format;
    format.setFontFamilies({QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Consolas"),
                            QStringLiteral("WenQuanYi Micro Hei Mono"),
                            QStringLiteral("monospace")});
    format.setFontPointSize(8.5);
    return format;
}

/// The reader names a font for code, and for nothing else.
void setTypewriterParts(const QTextBlock &block)
{
    for (auto part = block.begin(); !part.atEnd(); ++part) {
        if (!part.fragment().charFormat().hasProperty(QTextFormat::FontFamily))
            continue;
        QTextCursor cursor(block);
        cursor.setPosition(part.fragment().position());
        cursor.setPosition(part.fragment().position() + part.fragment().length(),
                           QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(typewriter());
    }
}

void styleHeading(const QTextBlock &block, int level)
{
    QTextBlockFormat format;
    format.setTopMargin(level == 1 ? 0 : level == 2 ? 22 : 14);
    format.setBottomMargin(level == 3 ? 5 : 8);
    QTextCursor(block).mergeBlockFormat(format);
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat characters = cursor.charFormat();
    characters.clearProperty(QTextFormat::FontSizeAdjustment); // would outdo the size
    characters.setFontPointSize(level == 1 ? 20 : level == 2 ? 15 : 11.5);
    cursor.setCharFormat(characters);
}

void styleCode(const QTextBlock &block)
{
    QTextBlockFormat format;
    format.setTopMargin(0);
    format.setBottomMargin(isCode(block.next()) ? 0 : 8);
    format.setLeftMargin(10);
    format.setBackground(QColor(codeColor));
    format.setNonBreakableLines(false);
    QTextCursor(block).mergeBlockFormat(format);
    setCharacters(block, typewriter());
}

bool holdsPicture(const QTextBlock &block)
{
    return block.text().contains(QChar::ObjectReplacementCharacter);
}

void styleText(const QTextBlock &block)
{
    QTextBlockFormat format;
    const bool isInTable = QTextCursor(block).currentTable() != nullptr;
    format.setBottomMargin(isInTable ? 0 : block.textList() ? 3 : 7);
    if (!holdsPicture(block))
        format.setLineHeight(120, QTextBlockFormat::ProportionalHeight);
    QTextCursor(block).mergeBlockFormat(format);
    setTypewriterParts(block);
}

void styleTable(QTextTable &table)
{
    QTextTableFormat format = table.format();
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setBorderBrush(QColor(frameColor));
    format.setCellPadding(4);
    format.setTopMargin(4);
    format.setBottomMargin(10);
    table.setFormat(format);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(0, column);
        QTextCharFormat cellFormat = cell.format();
        cellFormat.setBackground(QColor(headerColor));
        cell.setFormat(cellFormat);
        setCharacters(cell.firstCursorPosition().block(), bold);
    }
}

/// Where the blocks of a document stand.
class Pages
{
public:
    explicit Pages(const QTextDocument &document)
        : m_layout(*document.documentLayout())
        , m_height(document.pageSize().height())
    {}

    int pageOf(const QTextBlock &block) const { return int(topOf(block) / m_height); }
    double roomAt(const QTextBlock &block) const
    {
        return m_height - std::fmod(topOf(block), m_height);
    }

    double heightOf(const QTextBlock &block) const
    {
        return m_layout.blockBoundingRect(block).height();
    }

private:
    double topOf(const QTextBlock &block) const { return m_layout.blockBoundingRect(block).top(); }

    QAbstractTextDocumentLayout &m_layout;
    double m_height;
};

/// What the layout brings up to date by itself after a change has holes.
void layOutAgain(QTextDocument &document)
{
    document.markContentsDirty(0, document.characterCount());
}

void breakBefore(const QTextBlock &block)
{
    QTextBlockFormat format;
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor cursor(block);
    cursor.mergeBlockFormat(format);
    layOutAgain(*cursor.document());
}

/// What \a block needs on its page: a heading what follows too, a picture itself.
double roomNeeded(const QTextBlock &block, const Pages &pages, double scale)
{
    if (block.blockFormat().headingLevel() > 1)
        return std::max(pages.heightOf(block) + pages.heightOf(block.next()), headingRoom * scale);
    return holdsPicture(block) ? pages.heightOf(block) : 0.0;
}

void keepTableTogether(QTextTable &table, const Pages &pages, double scale)
{
    const QTextBlock first = table.firstCursorPosition().block();
    const QTextBlock last = table.lastCursorPosition().block();
    QTextTableFormat format = table.format();
    const bool isCut = pages.pageOf(first) != pages.pageOf(last);
    if (pages.roomAt(first) < tableRoom * scale || (isCut && table.rows() <= shortTable)) {
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        table.setFormat(format);
        layOutAgain(*table.document());
    }
    // Only where it is needed: below a table that ends with its page the heading would come again.
    if (pages.pageOf(first) != pages.pageOf(last)) {
        format.setHeaderRowCount(1);
        table.setFormat(format);
        layOutAgain(*table.document());
    }
}

} // namespace

namespace ManualStyle {

void tidy(QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid();) {
        const QTextBlock next = block.next();
        if (block.length() == 1 && !isCode(next)) {
            QTextCursor cursor(block);
            if (areNeighbours(block, next))
                cursor.deleteChar();
            else if (isCode(block.previous()) && areNeighbours(block.previous(), block))
                cursor.deletePreviousChar();
        }
        block = next;
    }
}

void apply(QTextDocument &document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level > 0)
            styleHeading(block, level);
        else if (isCode(block))
            styleCode(block);
        else
            styleText(block);
    }
    const QList<QTextTable *> tables = tablesOf(document);
    for (QTextTable *table : tables)
        styleTable(*table);
}

void keepTogether(QTextDocument &document, double scale)
{
    const Pages pages(document);
    const QTextTable *current = nullptr;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextTable *table = QTextCursor(block).currentTable();
        const bool isNewTable = table && table != current;
        current = table;
        if (pages.roomAt(block) < roomNeeded(block, pages, scale))
            breakBefore(block);
        else if (isNewTable)
            keepTableTogether(*table, pages, scale);
    }
}

} // namespace ManualStyle
