#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string_view>

/// What every fuzz target defines: tries one input. Nothing may come of it but a return.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Ends the program, so that the input is kept, when something that must hold does not.
inline void require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

/// An input, taken apart from front to back. What lies beyond its end is 0 or empty.
class FuzzInput
{
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : m_rest(data, size)
    {}

    bool isEmpty() const { return m_rest.empty(); }

    template <typename Value>
    Value take()
    {
        Value value = {};
        const auto bytes = takeText(sizeof value);
        std::memcpy(&value, bytes.data(), bytes.size());
        return value;
    }
    std::string_view takeText(std::size_t length)
    {
        const auto taken = m_rest.first(length < m_rest.size() ? length : m_rest.size());
        m_rest = m_rest.subspan(taken.size());
        return {reinterpret_cast<const char*>(taken.data()), taken.size()};
    }
    std::string_view takeRest() { return takeText(m_rest.size()); }

private:
    std::span<const std::uint8_t> m_rest;
};
