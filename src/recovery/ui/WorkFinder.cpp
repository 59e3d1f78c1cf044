// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/WorkFinder.h"

#include "session/UserRecoveryFolder.h"

#include <utility>

namespace orvane {

WorkFinder::~WorkFinder() { Drop(); }

void WorkFinder::Begin(FileSystem& files, const RecoveryFolder& folder) {
    Drop();
    isWanted_ = true;
    thread_ = std::thread([this, &files, &folder] {
        folder.Age(TimeNow());
        WorkList work = ListWork(files, folder);
        const auto tell = [this, found = std::move(work)] {
            if (std::exchange(isWanted_, false))
                Q_EMIT Found(found);
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

void WorkFinder::Drop() {
    isWanted_ = false;
    if (thread_.joinable())
        thread_.join();
}

} // namespace orvane
