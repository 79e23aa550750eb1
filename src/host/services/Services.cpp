#include "host/services/host_services.h"

namespace quillon {

IApp* gApp = nullptr;
IStd* gStd = nullptr;
ISession* gSession = nullptr;
IReports* gReports = nullptr;

}  // namespace quillon
