#include "app/myapplication.h"

MyApplication::MyApplication(const QString &id, int &argc, char **argv)
    : QtSingleApplication(id, argc, argv)
{}
