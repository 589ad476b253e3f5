#include "AppStartup.h"

int main(int argc, char* argv[]) {
    return AppStartup::run(argc, argv);
}
