# Out-of-tree build of rtl8304.ko (included by the top-level Makefile; the
# board kind's settings come from board/board.mk).
#
#   make module [BOARD_KIND=..]   against the virtual board's kernel of that kind
#                                 (built first when missing), W=1 and sparse (C=2)
#   make module KDIR=<configured tree> [ARCH=.. CROSS_COMPILE=..] [C=1|2]
#   make module-x86               W=1 and sparse against Debian's linux-headers-amd64
#   make modules-all              module-x86 and the module of every board kind
#
# Each build runs in a staging directory of symbolic links (build/kmod/<kind>,
# or build/kmod/<arch> with KDIR) so that no object lands in the source tree
# and the builds do not overwrite each other's objects.  Any compiler, sparse
# or modpost warning fails the target; the build log is shown on failure.

KMOD_SOURCES = Kbuild drivers/net/phy/rtl8304.c \
	$(wildcard switch_chip/*.[ch] switch_api/*.[ch] include/linux/*.h include/uapi/linux/*.h)

ifeq ($(origin KDIR),undefined)
# (Deferred: board/board.mk is read after this file.)
KMOD_BOARD = $(abspath $(BOARD_BUILD))/$(BOARD_KIND)
KMOD_KDIR = $(KMOD_BOARD)/linux
KMOD_ARCH = $(KIND_ARCH)
KMOD_CROSS = $(KIND_CROSS)
# The swconfig stand-in of the board exports register_switch().
KMOD_SYMVERS = $(KMOD_BOARD)/kmod/Module.symvers
KMOD_CHECK = $(or $(C),2)
KMOD_OUT = $(CURDIR)/$(BUILD)/kmod/$(BOARD_KIND)
KMOD_PREREQ := board-modules
else
KMOD_KDIR := $(abspath $(KDIR))
KMOD_ARCH := $(ARCH)
KMOD_CROSS := $(CROSS_COMPILE)
KMOD_SYMVERS :=
KMOD_CHECK := $(C)
KMOD_OUT := $(CURDIR)/$(BUILD)/kmod/$(or $(KMOD_ARCH),native)
KMOD_PREREQ :=
endif

KMOD_X86_KDIR = $(lastword $(sort $(wildcard /usr/src/linux-headers-*-amd64)))
KMOD_X86_OUT := $(CURDIR)/$(BUILD)/kmod/x86_64

# $(call kmod-build,kdir,outdir,make-args,extra-symvers,tolerated-warning-regex)
# Objects of another kernel tree (an earlier board configuration) are dropped.
define kmod-build
	@k=$$(readlink -f $(1)); if [ ! -f $(2)/.kdir ] || [ "$$(cat $(2)/.kdir)" != "$$k" ]; then \
		rm -rf $(2); mkdir -p $(2); echo "$$k" >$(2)/.kdir; fi
	@find $(2) -type l -delete
	@for f in $(KMOD_SOURCES); do \
		mkdir -p $(2)/$$(dirname $$f) && ln -s $(CURDIR)/$$f $(2)/$$f; done
	@echo "  KMOD    $(2) ($(1))"
	@$(MAKE) -C $(1) M=$(2) W=1 $(3) $(if $(wildcard $(4)),KBUILD_EXTRA_SYMBOLS=$(4)) \
		modules >$(2)/build.log 2>&1 || { cat $(2)/build.log; exit 1; }
	@if grep -E 'warning:|WARNING:' $(2)/build.log $(if $(5),| grep -vE '$(5)'); then \
		echo "kmod: warnings in $(2)/build.log" >&2; exit 1; fi
endef

.PHONY: module module-x86 modules-all deps-kmod

deps-kmod:
	@scripts/ensure-deps.sh kmod

module: $(KMOD_PREREQ)
	@test -f $(KMOD_KDIR)/Makefile || { \
		echo "kmod: no configured kernel tree at $(KMOD_KDIR) (pass KDIR=)" >&2; exit 1; }
	$(call kmod-build,$(KMOD_KDIR),$(KMOD_OUT),$(if $(KMOD_ARCH),ARCH=$(KMOD_ARCH)) \
		$(if $(KMOD_CROSS),CROSS_COMPILE=$(KMOD_CROSS)) \
		$(if $(KMOD_CHECK),C=$(KMOD_CHECK)),$(KMOD_SYMVERS))

# Debian's kernel has no swconfig: the two framework symbols stay undefined
# for modpost, which is told to report rather than fail; those two reports
# are the only warnings let through.
module-x86: deps-kmod
	@test -n "$(KMOD_X86_KDIR)" || { echo "kmod: linux-headers-amd64 missing" >&2; exit 1; }
	$(call kmod-build,$(KMOD_X86_KDIR),$(KMOD_X86_OUT),C=2 KBUILD_MODPOST_WARN=1,,\
"(un)?register_switch" \[.*\] undefined!)

CHECK_TARGETS += module-x86

modules-all: module-x86
	@for k in $(BOARD_KINDS); do \
		$(MAKE) --no-print-directory BOARD_KIND=$$k module || exit 1; done
