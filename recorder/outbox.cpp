#include "recorder/outbox.h"

#include <utility>

namespace {

// Lines of one file go out in pieces of about so many bytes.
constexpr int pieceSize = 64 * 1024;

} // namespace

Outbox::Outbox(Append append, std::size_t capacity)
    : m_append(std::move(append))
    , m_capacity(capacity)
{}

void Outbox::add(Line line)
{
    m_lines.push_back(std::move(line));
    if (m_lines.size() > m_capacity) {
        m_lines.pop_front();
        ++m_lost;
    }
}

std::optional<Outbox::Change> Outbox::flush()
{
    while (!m_lines.empty()) {
        Line piece = m_lines.front();
        std::size_t count = 1;
        while (count < m_lines.size() && m_lines[count].file == piece.file &&
               piece.text.size() < pieceSize)
            piece.text += m_lines[count++].text;
        if (const std::optional<QString> reason = m_append(piece)) {
            if (std::exchange(m_isFailing, true))
                return std::nullopt;
            return Change{true, *reason};
        }
        m_lines.erase(m_lines.begin(), m_lines.begin() + std::ptrdiff_t(count));
    }
    if (std::exchange(m_isFailing, false))
        return Change{false, {}};
    return std::nullopt;
}

qint64 Outbox::takeLost()
{
    return std::exchange(m_lost, 0);
}
