// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "recovery/ui/WorkList.h"

#include <QObject>

#include <thread>

namespace orvane {

// Tidies the recovery folder up and lists what is in it, while the user goes on: long journals take their
// time.
class WorkFinder : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;
    ~WorkFinder() override;

    // The folder is asked in a thread; its file system must bear that.
    void Begin(FileSystem& files, const RecoveryFolder& folder);
    // Waits until the thread is done. What it has found is not told: somebody looks for himself.
    void Drop();

  Q_SIGNALS:
    void Found(const orvane::WorkList& work);

  private:
    std::thread thread_;
    bool isWanted_ = false;
};

} // namespace orvane
