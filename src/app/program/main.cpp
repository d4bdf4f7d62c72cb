#include "app/DesktopApplication.h"
#include "service/ThisProcess.h"

int main(int argc, char** argv) {
    quillon::endProcess(quillon::runDesktopApplication(argc, argv));
}
