#pragma once

#include "platform/qtsingleapplication.h"

/// The application object: one running instance for each id.
class MyApplication : public QtSingleApplication
{
    Q_OBJECT
public:
    using QtSingleApplication::QtSingleApplication;
};
