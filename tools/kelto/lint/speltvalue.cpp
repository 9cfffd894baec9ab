// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "lint/speltvalue.h"

#include "core/settingstext_p.h"

namespace {

class ValueScanner
{
public:
    explicit ValueScanner(std::string_view value)
        : m_at(value.data())
        , m_end(m_at + value.size())
    {
    }

    SpeltValue scanned()
    {
        begin(m_at);
        while (m_at < m_end) {
            if (*m_at == '\\')
                takeBackslash();
            else if (*m_at == '"')
                takeQuote();
            else if (*m_at == ',' && !m_quote)
                takeComma();
            else
                takeCharacter();
        }
        if (m_quote)
            addLongQuote();
        endElement();
        return m_value;
    }

private:
    void begin(const char *place)
    {
        m_begin = place;
        m_contentBegin = nullptr;
        m_contentEnd = place;
    }

    void takeContent(int length)
    {
        if (!m_contentBegin)
            m_contentBegin = m_at;
        m_at += length;
        m_contentEnd = m_at;
    }

    void takeBackslash()
    {
        const bool isLast = m_at + 1 == m_end;
        if (!isLast && isLineEnd(m_at[1])) {
            joinLines();
            return;
        }
        if (!m_quote && isEscape())
            m_value.escapes.append(m_at);
        takeContent(isLast ? 1 : 2);
    }

    /// A backslash and a quote are escaped in any text that holds them; all others stand for a
    /// character that can hardly be seen.
    bool isEscape() const
    {
        const auto is = [this](std::ptrdiff_t index, std::string_view characters) {
            return m_at + index < m_end && characters.find(m_at[index]) != characters.npos;
        };
        return is(1, "abfnrtv?'01234567") || (is(1, "x") && is(2, "0123456789abcdefABCDEF"));
    }

    void joinLines()
    {
        const char *const backslash = m_at;
        const char *const next = behindLineEnd(m_at + 1, m_end);
        if (m_quote || m_contentBegin || m_value.elements.empty()) {
            if (!m_quote)
                m_value.joints.append(backslash);
            takeContent(static_cast<int>(next - backslash));
        } else {
            m_at = next;
            begin(next);
            m_element.beginsLine = true;
        }
    }

    void takeQuote()
    {
        m_quote = m_quote ? nullptr : m_at;
        m_element.hasQuotes = true;
        takeContent(1);
    }

    void takeComma()
    {
        if (!m_value.comma)
            m_value.comma = m_at;
        endElement();
        begin(++m_at);
    }

    void takeCharacter()
    {
        if (!m_quote && isBlank(*m_at)) {
            ++m_at;
            return;
        }
        if (m_quote && isLineEnd(*m_at))
            addLongQuote();
        takeContent(1);
    }

    void addLongQuote()
    {
        if (m_value.longQuotes.isEmpty() || m_value.longQuotes.constLast() != m_quote)
            m_value.longQuotes.append(m_quote);
    }

    void endElement()
    {
        const char *const content = m_contentBegin ? m_contentBegin : m_at;
        const char *const contentEnd = m_contentBegin ? m_contentEnd : m_at;
        m_element.text = textBetween(content, contentEnd);
        m_element.blanksBefore = static_cast<int>(content - m_begin);
        m_element.blanksBehind = static_cast<int>(m_at - contentEnd);
        m_value.elements.push_back(m_element);
        m_element = SpeltElement();
    }

    const char *m_at;
    const char *const m_end;
    SpeltValue m_value;
    SpeltElement m_element;
    const char *m_begin = nullptr;
    const char *m_contentBegin = nullptr;
    const char *m_contentEnd = nullptr;
    const char *m_quote = nullptr; ///< The one that is open.
};

} // namespace

SpeltValue speltValueOf(std::string_view value)
{
    return ValueScanner(value).scanned();
}
