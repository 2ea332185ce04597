#pragma once

#include "StockData.h"

/// A door in a wall of the floor plan.
struct CPlanDoor
{
    CPoint m_hinge;
    CSize m_along; // from the hinge along the wall, one unit
    CSize m_into;  // from the wall into the room, one unit
    int m_nWidth;
};

/// @return the innermost room at a point of the plan, or NO_ROOM.
int FindRoomAt(const CStock &stock, CPoint point);
/// @return whether other rooms on the plan lie in a room.
BOOL HasRooms(const CStock &stock, int nRoom);
/// Finds a place for a door, with free ground on both sides of it.
/// @return FALSE when there is none.
BOOL FindDoor(const CStock &stock, int nRoom, CPlanDoor &door);
