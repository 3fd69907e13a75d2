/*
 * qgui public interface: everything the logic layer uses, in one include.
 *
 *   types.h            basic types, call-backs, colour/opacity/alignment words
 *   ids.h              window id, option, encoding and storage helpers
 *   events.h           event codes and payloads of the event call-back
 *   records_*.h        creation records of windows and widgets, by family
 *   view.h             the View_* functions
 *   scale.h            scale classes to use and derive from
 *   ftp.h              FTP server and client
 *   mqtt.h             MQTT clients
 *   xdatabase.h        database access
 *   xmd5.h, xdzip.h    password digests, archives
 */
#ifndef QGUI_QGUI_H
#define QGUI_QGUI_H

#include "events.h"
#include "ftp.h"
#include "ids.h"
#include "mqtt.h"
#include "records_curve.h"
#include "records_display.h"
#include "records_input.h"
#include "records_list.h"
#include "records_menu.h"
#include "records_misc.h"
#include "records_window.h"
#include "scale.h"
#include "types.h"
#include "view.h"
#include "xdatabase.h"
#include "xdzip.h"
#include "xmd5.h"

#endif /* QGUI_QGUI_H */
