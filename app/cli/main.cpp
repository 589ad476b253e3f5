#include "CommandLineTool.h"

int main(int argc, char** argv) {
    return CommandLineTool::run(argc, argv);
}
