#include "tests/firmware/texts/record.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace {

// Stands where the next piece would: RUNNER_LAST.
constexpr unsigned noPiece = 0xFFFFFFFF;

class Stream {
 public:
  explicit Stream(Bytes const& stream) : bytes(stream) {}

  // A number of 2 or 4 bytes, low byte first. Behind the end there are zeros.
  unsigned number(unsigned size) {
    unsigned value = 0;
    for (unsigned i = 0; i < size; ++i, ++at) {
      value |= at < bytes.size() ? static_cast<unsigned>(bytes[at]) << (8 * i) : 0U;
    }
    return value;
  }

  // So many numbers of 2 bytes, or fewer where the stream ends.
  std::vector<int> row(unsigned count) {
    std::vector<int> values;
    while (values.size() < count && at < bytes.size()) {
      values.push_back(static_cast<int>(number(2)));
    }
    return values;
  }

  // Zero or less when nothing was read behind the end.
  std::ptrdiff_t beyond() const {
    return static_cast<std::ptrdiff_t>(at) - static_cast<std::ptrdiff_t>(bytes.size());
  }

 private:
  Bytes const& bytes;
  std::size_t at = 0;
};

int withSign(int bits) {
  return bits < 32768 ? bits : bits - 65536;
}

void readHead(Stream& stream, Record& record) {
  record.status = stream.number(2);
  record.rate = stream.number(4);
  record.channels = stream.number(2);
  record.count = stream.number(4);
  record.speexFrames = stream.number(4);
  record.frameSamples = stream.number(2);
  record.mode = stream.number(2);
  record.delay = stream.number(2);
}

// The rows of one piece, the first of which has `frameBytes` numbers.
void readPiece(Stream& stream, unsigned frameBytes, Record& record) {
  std::vector<int> const frame = stream.row(frameBytes);
  if (record.speexFrames != 0) {
    record.frames.emplace_back(frame.begin(), frame.end());
  }
  std::vector<int> const samples = stream.row(stream.number(4));
  std::transform(samples.begin(), samples.end(), std::back_inserter(record.samples), withSign);
  std::vector<int> const codes = stream.row(stream.number(4));
  record.codes.insert(record.codes.end(), codes.begin(), codes.end());
}

Record readRecord(Stream& stream) {
  Record record;
  readHead(stream, record);
  unsigned first = stream.number(4);
  while (first != noPiece && stream.beyond() < 0) {
    readPiece(stream, first, record);
    first = stream.number(4);
  }
  record.left = stream.number(4);
  return record;
}

}  // namespace

std::optional<std::vector<Record>> readRecords(Bytes const& bytes) {
  Stream stream(bytes);
  unsigned const count = stream.number(4);
  std::vector<Record> records;
  while (records.size() < count && stream.beyond() < 0) {
    records.push_back(readRecord(stream));
  }
  if (records.size() != count || stream.beyond() != 0) {
    return std::nullopt;
  }
  return records;
}
