#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

/// The desktop's list of C strings (`List<char>`). It owns copies of the texts put in.
template<typename T>
class List
{
public:
    /// Appends a copy of the NUL-terminated \a text.
    void append(const T *text)
    {
        const std::size_t length = std::char_traits<T>::length(text) + 1;
        auto copy = std::make_unique<T[]>(length);
        std::memcpy(copy.get(), text, length * sizeof(T));
        m_items.push_back(std::move(copy));
    }
    int count() const { return int(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    /// The text at \a index (0 to count() - 1); it belongs to the list.
    const T *at(int index) const { return m_items[std::size_t(index)].get(); }
    void clear() { m_items.clear(); }

private:
    std::vector<std::unique_ptr<T[]>> m_items;
};
