#pragma once

#include <QBuffer>

namespace sargan {

/// Collects in memory what a writer of the toolkit writes; saveFile then takes the bytes to the disk.
class ByteBuffer : public QBuffer {
public:
    ByteBuffer() { open(QIODevice::WriteOnly); }
};

}  // namespace sargan
