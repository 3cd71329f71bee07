#pragma once

#include <deque>
#include <string>

/// The desktop's list of C strings (`List<char>`). It owns copies of the texts put in.
template<typename T>
class List
{
public:
    /// Appends a copy of the NUL-terminated \a text.
    void append(const T *text) { m_items.emplace_back(text); }
    int count() const { return int(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    /// The text at \a index (0 to count() - 1); it belongs to the list.
    const T *at(int index) const { return m_items[std::size_t(index)].c_str(); }

private:
    std::deque<std::basic_string<T>> m_items; // which stay in their places while others are appended
};
