#include "Require.h"
#include "clean/RecordJson.h"
#include "insight/Predictor.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>

namespace {

using namespace orlen;

template <typename Record>
std::string textOf(const std::vector<Record>& records)
{
    std::string text = "[";
    for (const Record& record : records)
        text += (text.size() > 1 ? "," : "") + RecordJson::encode(record).dump();
    return text + ']';
}

template <typename Record>
void checkWholeness(std::string_view text, const RecordJson::Decoded<Record>& decoded)
{
    const auto document = nlohmann::json::parse(text, nullptr, false);
    require(!decoded.isWhole || (document.is_array() && document.size() == decoded.records.size()));
}

/// Whatever a file holds, what is read of it can be summed, forecast, written and read again.
void checkAny(const std::string& text)
{
    const auto history = RecordJson::decodeHistory(text);
    checkWholeness(text, history);
    std::int64_t total = 0;
    for (const CleanRecord& record : history.records)
        total += record.freed();
    require(total >= 0 && total <= kMostBytes);
    const auto again = RecordJson::decodeHistory(textOf(history.records));
    require(again.isWhole && again.records == history.records);

    const auto snapshots = RecordJson::decodeSnapshots(text);
    checkWholeness(text, snapshots);
    const auto snapshotsAgain = RecordJson::decodeSnapshots(textOf(snapshots.records));
    require(snapshotsAgain.isWhole && snapshotsAgain.records == snapshots.records);
    require(Predictor::predict(snapshots.records).freeSeries.size() == snapshots.records.size());
}

/// A byte that is lost anywhere costs no more than the record it stood in.
void checkLostByte(std::string_view words, std::size_t place)
{
    if (!PathText::isValidUtf8(words))
        return;
    std::vector<CleanRecord> records(4);
    for (std::size_t i = 0; i < records.size(); ++i) {
        records[i].id.bytes[0] = static_cast<std::uint8_t>(i);
        records[i].title = words;
        records[i].items = {{"/a/" + std::string(words), "/t", 5, false},
                            {"/b", std::string(words), 0, true}};
    }
    std::string text = textOf(records);
    text.erase(place % text.size(), 1);
    const auto history = RecordJson::decodeHistory(text);
    const auto kept = std::count_if(records.begin(), records.end(), [&](const CleanRecord& record) {
        return std::find(history.records.begin(), history.records.end(), record) != history.records.end();
    });
    require(kept >= 3 && history.records.size() <= records.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkAny(std::string(text));
    if (size >= 2)
        checkLostByte(text.substr(2), data[0] * std::size_t{256} + data[1]);
    return 0;
}
