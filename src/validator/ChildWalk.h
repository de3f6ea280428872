// Goes over the children of an XML element and comes back.
#pragma once

#include "KZCDebugDump.h"
#include "fault/Fault.h"

/// Calls visit for each element child of the cursor's element, in order, until one gives another
/// status than STATUS_OK. The cursor is back on return.
/// \return that status; STATUS_NG, logged under szFunction, if the cursor can't return.
template <class Cursor, class Visit>
int WalkChildren(Cursor& cursor, const char* szFunction, Visit visit)
{
    if (cursor.MoveFirstChild() != STATUS_OK)
        return STATUS_OK;
    int nStatus = STATUS_OK;
    do
        nStatus = visit(cursor);
    while (nStatus == STATUS_OK && cursor.MoveNextSibling() == STATUS_OK);
    if (cursor.MoveParent() == STATUS_OK)
        return nStatus;
    KZCDebugDump::Log(szFunction, "定義体のDOM操作に失敗しました。");
    return STATUS_NG;
}
