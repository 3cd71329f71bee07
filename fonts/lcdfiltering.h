#pragma once

#include <functional>

/// What a test of the FreeType library for LCD filtering found; Unknown when the library did not start.
enum class LcdFiltering { Unknown, No, Yes };

/// Asks the FreeType library.
LcdFiltering probeLcdFiltering();

/// Remembers the first certain answer of a probe.
class LcdFilterSupport
{
public:
    explicit LcdFilterSupport(std::function<LcdFiltering()> probe);

    /// Whether sub-pixel rendering makes sense. An unknown answer counts as yes and is asked for again.
    bool isSupported();

private:
    std::function<LcdFiltering()> m_probe;
    LcdFiltering m_answer = LcdFiltering::Unknown;
};
