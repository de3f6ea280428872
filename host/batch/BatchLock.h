// One batch at a time in an output folder.
#pragma once

#include "file/Descriptor.h"

namespace host {

/// A lock on a file that its owner alone may open: whoever may only read the folder can't hold the
/// batch up. The file goes when the batch ends; one that a kill left behind is taken over.
class BatchLock
{
public:
    static constexpr const char* FILE_NAME = ".kzekamok-batch.lock";

    BatchLock() = default;
    ~BatchLock();
    BatchLock(const BatchLock&) = delete;
    BatchLock& operator=(const BatchLock&) = delete;

    /// \param nFolder  Open as long as the object lives.
    /// \return 0, EWOULDBLOCK if another batch has the lock, EPERM if the file is somebody else's,
    /// or another error number. Where files can't be locked, nothing is.
    int Lock(int nFolder);
    /// A worker process that lives on must not hold the folder.
    void CloseInChild() const;

private:
    int TryToLock();

    int m_nFolder = -1;
    Descriptor m_file;
};

}  // namespace host
