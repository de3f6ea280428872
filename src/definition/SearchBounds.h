// How far the search for the parent of a definition's item goes.
#pragma once

#include "definition/DefinitionLimits.h"

/// Bounds of one search for a parent. Parents that stand once per generation double the ways
/// through the tree at each level, so a hostile file could make the search endless, or too deep to
/// return. A search that has met a bound has failed, whatever it found before.
class SearchBounds
{
public:
    /// Passes a child of the node that is looked at. \return Whether the search may go on.
    [[nodiscard]] bool Step()
    {
        m_bStopped = m_bStopped || ++m_lSteps > DefinitionLimits::SEARCH_STEPS;
        return !m_bStopped;
    }
    /// A child of the node that is looked at isn't too deep. \return The same.
    [[nodiscard]] bool HasRoomBelow()
    {
        m_bTooDeep = m_bTooDeep || m_nLevel >= DefinitionLimits::TREE_DEPTH;
        m_bStopped = m_bStopped || m_bTooDeep;
        return !m_bStopped;
    }
    /// A level down, and up again. The search begins at level 0, the report's.
    void Enter() { ++m_nLevel; }
    void Leave() { --m_nLevel; }

    bool IsStopped() const { return m_bStopped; }
    /// It was stopped by the levels, not by its length.
    bool IsTooDeep() const { return m_bTooDeep; }

private:
    long m_lSteps = 0;
    int m_nLevel = 0;
    bool m_bStopped = false;
    bool m_bTooDeep = false;
};
