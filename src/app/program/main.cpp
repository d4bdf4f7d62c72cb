#include "app/DesktopApplication.h"

int main(int argc, char** argv) {
    return quillon::runDesktopApplication(argc, argv);
}
