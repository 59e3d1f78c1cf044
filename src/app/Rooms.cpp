// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Rooms.h"

#include "builder/ui/BuilderRoom.h"
#include "codegen/ui/GeneratorRoom.h"
#include "diagram/ui/DiagramRoom.h"
#include "editors/ui/CellRoom.h"
#include "editors/ui/EditorsRoom.h"
#include "export/ui/ExportRoom.h"
#include "find/ui/FindRoom.h"
#include "find/ui/MoveRoom.h"
#include "find/ui/RenameRoom.h"
#include "findings/ui/FindingsRoom.h"
#include "outside/ui/OutsideRoom.h"
#include "print/ui/PrintRoom.h"
#include "recovery/ui/RecoveryRoom.h"
#include "review/ui/ReviewRoom.h"
#include "run/ui/RunRoom.h"
#include "table/ui/BacktrackRoom.h"
#include "table/ui/TableRoom.h"
#include "welcome/ui/WelcomeRoom.h"

namespace orvane {

std::vector<std::unique_ptr<Room>> MakeRooms(const RoomPlace& place) {
    std::vector<std::unique_ptr<Room>> rooms;
    rooms.push_back(std::make_unique<TableRoom>(place));
    rooms.push_back(std::make_unique<OutsideRoom>(place));
    rooms.push_back(std::make_unique<GeneratorRoom>(place));
    rooms.push_back(std::make_unique<BuilderRoom>(place));
    rooms.push_back(std::make_unique<BacktrackRoom>(place));
    rooms.push_back(std::make_unique<EditorsRoom>(place));
    rooms.push_back(std::make_unique<CellRoom>(place));
    rooms.push_back(std::make_unique<RecoveryRoom>(place));
    rooms.push_back(std::make_unique<FindingsRoom>(place));
    rooms.push_back(std::make_unique<DiagramRoom>(place));
    rooms.push_back(std::make_unique<RunRoom>(place));
    rooms.push_back(std::make_unique<ReviewRoom>(place));
    rooms.push_back(std::make_unique<FindRoom>(place));
    rooms.push_back(std::make_unique<RenameRoom>(place));
    rooms.push_back(std::make_unique<MoveRoom>(place));
    rooms.push_back(std::make_unique<ExportRoom>(place));
    rooms.push_back(std::make_unique<PrintRoom>(place));
    rooms.push_back(std::make_unique<WelcomeRoom>(place));
    return rooms;
}

} // namespace orvane
