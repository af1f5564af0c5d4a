#include "search/search_pages.h"

namespace tallywick {

void fillDrawPickers(SearchPages&, const DataFolder&, const GameInfo&) {}
void fillPlayPicker(SearchPages&, const DataFolder&, const GameInfo&) {}
void fillDoublePlayLists(SearchPages&, const DataFolder&) {}
void setSearchCaptions(SearchPages&, const std::array<std::string, 6>&) {}

}  // namespace tallywick
