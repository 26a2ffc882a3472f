/* SPDX-License-Identifier: GPL-2.0 */
/*
 * RTL8309N qos_bw block: register coordinates and operations.
 * (Still to be filled in from rtl8309n_regs.h and rtl8309n_asicdrv.h.)
 */
#ifndef RTL8309N_QOS_BW_H
#define RTL8309N_QOS_BW_H

#include "rtl8309n_types.h"

#endif /* RTL8309N_QOS_BW_H */
