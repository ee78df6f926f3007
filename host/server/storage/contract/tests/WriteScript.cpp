// SPDX-License-Identifier: MIT
#include "host/server/storage/contract/tests/WriteScript.h"

#include "host/server/storage/contract/CatalogStorage.h"
#include "host/server/storage/contract/ScheduleStorage.h"

namespace Tarvik::Server::WriteScript {

namespace {

constexpr const char* kOwner = "ann";
constexpr const char* kVoyage = "1000002";
constexpr const char* kBook = "1000003";
constexpr int kBlock = 100;

enum Kind { kCategory, kCalls, kReplaceRows, kAppendRows, kKinds };

Kind KindOf(int number) {
    return static_cast<Kind>(number % kKinds);
}

std::vector<PortCallRecord> CallsOf(int number) {
    std::vector<PortCallRecord> calls;
    for (int i = 0; i <= number % 37; ++i) {
        calls.push_back(
            {i, std::to_string(i), "Port " + std::to_string(number), "D", 18.52, 0.1, 1.0 * number});
    }
    return calls;
}

std::vector<BookRowRecord> RowsOf(int number, int first) {
    std::vector<BookRowRecord> rows;
    for (int i = first; i < first + kBlock; ++i) {
        rows.push_back({i, "Row " + std::to_string(number), 0.001 * i, -0.001 * i, "GC", 5, 18.52, 0});
    }
    return rows;
}

}  // namespace

bool Prepare(Storage& storage) {
    const auto category = storage.Catalog().CreateCategory(kOwner, "start");
    VoyageRecord voyage;
    voyage.name = "V";
    return category && storage.Catalog().CreateVoyage(kOwner, category.Value(), voyage) &&
           storage.Schedule().CreateBook(kOwner, kVoyage, "2026-03-01 08:00:00");
}

bool Write(Storage& storage, int number) {
    switch (KindOf(number)) {
        case kCalls:
            return storage.Schedule().ReplacePortCalls(kOwner, kVoyage, CallsOf(number)).Succeeded();
        case kReplaceRows:
            return storage.Schedule().ReplaceBookRows(kOwner, kBook, {}, RowsOf(number, 0)).Succeeded();
        case kAppendRows:
            return storage.Schedule().AppendBookRows(kOwner, kBook, {}, RowsOf(number, kBlock)).Succeeded();
        default:
            return storage.Catalog().CreateCategory(kOwner, std::to_string(number)).Succeeded();
    }
}

WrittenData Start() {
    return {{"start"}, {}, {}};
}

void Apply(WrittenData& data, int number) {
    switch (KindOf(number)) {
        case kCalls:
            data.calls = CallsOf(number);
            break;
        case kReplaceRows:
            data.rows = RowsOf(number, 0);
            break;
        case kAppendRows: {
            const auto rows = RowsOf(number, kBlock);
            data.rows.insert(data.rows.end(), rows.begin(), rows.end());
            break;
        }
        default:
            data.categories.push_back(std::to_string(number));
    }
}

WrittenData Read(Storage& storage) {
    const auto catalog = storage.Catalog().LoadCatalog(kOwner);
    const auto calls = storage.Schedule().LoadPortCalls(kOwner, kVoyage);
    const auto book = storage.Schedule().LoadBook(kOwner, kVoyage);
    if (!catalog || !calls || !book || !book.Value()) {
        return {};
    }
    WrittenData data;
    for (const CategoryRecord& category : catalog.Value()) {
        data.categories.push_back(category.name);
    }
    data.calls = calls.Value();
    data.rows = book.Value()->rows;
    return data;
}

}  // namespace Tarvik::Server::WriteScript
