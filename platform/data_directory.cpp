#include "platform/data_directory.h"

#include <unistd.h>

namespace {
const char* const directory_names[] = {"..", "data"};
}

int Data_Directory::enter(uint32_t index) {
    if (index == current_index) return 0;
    current_index = index;
    return chdir(directory_names[index]) == 0 ? 1 : 0;
}

void Data_Directory::leave() {
    if (current_index != start) enter(start);
}
