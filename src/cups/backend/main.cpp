#include "backend.h"

int main(int argc, char *argv[])
{
    return static_cast<int>(runBackend({argv, static_cast<std::size_t>(argc)}));
}
