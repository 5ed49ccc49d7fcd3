// The whole public interface of the toolkit, for clients that want one include: what can be done
// with dictionaries and services on top of the model (as/AgentServices.h). Functions take and
// return plain values; failures are exceptions, findings are values; nothing is printed, and no
// process ends.
#ifndef AS_TOOLKIT_TOOLKIT_H_
#define AS_TOOLKIT_TOOLKIT_H_

#include "as/toolkit/Baseline.h"
#include "as/toolkit/Convert.h"
#include "as/toolkit/Copybooks.h"
#include "as/toolkit/Diff.h"
#include "as/toolkit/DocumentReader.h"
#include "as/toolkit/Files.h"
#include "as/toolkit/Finding.h"
#include "as/toolkit/FindingsWriter.h"
#include "as/toolkit/Flavours.h"
#include "as/toolkit/Generate.h"
#include "as/toolkit/Import.h"
#include "as/toolkit/Lint.h"
#include "as/toolkit/Make.h"
#include "as/toolkit/Picture.h"
#include "as/toolkit/Render.h"
#include "as/toolkit/Report.h"
#include "as/toolkit/SourceFormat.h"
#include "as/toolkit/SourceLocation.h"
#include "as/toolkit/Storage.h"
#include "as/toolkit/Text.h"
#include "as/toolkit/Version.h"

#endif  // AS_TOOLKIT_TOOLKIT_H_
