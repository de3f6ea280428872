// How far the search for the parent of a definition's item goes.
#pragma once

/// Bounds of one search for a parent. Parents that stand once per generation double the ways
/// through the tree at each level, so a hostile file could make the search endless, or too deep to
/// return.
class SearchBounds
{
public:
    static constexpr long MAX_STEPS = 100000;
    static constexpr int MAX_DEPTH = 500;  ///< levels of the tree, the report's own included

    /// \return Whether the search may go on.
    [[nodiscard]] bool Step() { return ++m_lSteps <= MAX_STEPS; }
    /// A level down. \return The same.
    [[nodiscard]] bool Enter() { return Step() && ++m_nDepth <= MAX_DEPTH; }
    void Leave() { --m_nDepth; }

private:
    long m_lSteps = 0;
    int m_nDepth = 0;
};
