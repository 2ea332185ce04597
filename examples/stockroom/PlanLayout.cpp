#include "PlanLayout.h"

static const int DOOR_WIDTH = 26;
static const int GATE_WIDTH = 30; // of a room with rooms in it
static const int CORNER = 15;     // the least way from a corner to a door
static const int STEP = 5;
static const int POST = 4; // of wall that stays on both sides of a door
static const int FREE_GROUND = 10;

int FindRoomAt(const CStock &stock, CPoint point)
{
    int nFound = NO_ROOM;
    for (int i = 0; i < stock.GetRoomCount(); ++i) {
        if (stock.GetRoom(i).m_rcPlan.PtInRect(point) && stock.IsRoomIn(i, nFound))
            nFound = i;
    }
    return nFound;
}

BOOL HasRooms(const CStock &stock, int nRoom)
{
    for (int i = 0; i < stock.GetRoomCount(); ++i) {
        if (i != nRoom && stock.IsRoomIn(i, nRoom) && !stock.GetRoom(i).m_rcPlan.IsRectEmpty())
            return TRUE;
    }
    return FALSE;
}

// A floor has no place of its own on the plan.
static int FindOuterRoom(const CStock &stock, int nRoom)
{
    do
        nRoom = stock.GetRoom(nRoom).m_nParent;
    while (nRoom != NO_ROOM && stock.GetRoom(nRoom).m_rcPlan.IsRectEmpty());
    return nRoom;
}

static CPoint Walk(CPoint from, CSize step, int nSteps)
{
    from.x += step.cx * nSteps;
    from.y += step.cy * nSteps;
    return from;
}

static BOOL IsPassable(const CStock &stock, int nRoom, const CPlanDoor &door)
{
    const int nOuter = FindOuterRoom(stock, nRoom);
    for (int nAlong : {-POST, door.m_nWidth + POST}) {
        const CPoint post = Walk(door.m_hinge, door.m_along, nAlong);
        if (FindRoomAt(stock, Walk(post, door.m_into, FREE_GROUND)) != nRoom ||
            FindRoomAt(stock, Walk(post, door.m_into, -FREE_GROUND)) != nOuter)
            return FALSE;
    }
    return TRUE;
}

BOOL FindDoor(const CStock &stock, int nRoom, CPlanDoor &door)
{
    const CRect rect = stock.GetRoom(nRoom).m_rcPlan;
    const int nWidth = HasRooms(stock, nRoom) ? GATE_WIDTH : DOOR_WIDTH;
    const struct
    {
        CPoint corner;
        CSize along;
        CSize into;
        int nLength;
    } sides[] = {
        {CPoint(rect.left, rect.bottom), CSize(1, 0), CSize(0, -1), rect.Width()},
        {rect.TopLeft(), CSize(1, 0), CSize(0, 1), rect.Width()},
        {CPoint(rect.right, rect.top), CSize(0, 1), CSize(-1, 0), rect.Height()},
        {rect.TopLeft(), CSize(0, 1), CSize(1, 0), rect.Height()},
    };
    for (const auto &side : sides) {
        for (int nStart = CORNER; nStart + nWidth + CORNER <= side.nLength; nStart += STEP) {
            door = {Walk(side.corner, side.along, nStart), side.along, side.into, nWidth};
            if (IsPassable(stock, nRoom, door))
                return TRUE;
        }
    }
    return FALSE;
}
