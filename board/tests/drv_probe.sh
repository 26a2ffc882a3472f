#!/bin/sh
# board: K12M3
# Bring-up on the full board: one reset pulse, the chip's three addresses
# bound to the driver, copper PHYs reset, switch registered, MAC on address 8
# with a fixed 100/full link while the LEDs follow chip ports 0 and 3.
. /lib/board.sh
klog() { klog_new | sed 's/^\[[^]]*\] //'; }
has() { echo "$2" | grep -q -- "$1"; }
mdio=/sys/bus/mdio_bus/devices/rtl8304-board

insmod /modules/swconfig_test.ko
insmod /modules/rtl8304.ko
klog_mark
insmod /modules/rtl8304_board.ko &
pid=$!
seen=
while kill -0 $pid 2>/dev/null; do
	seen="$seen $(gpio_level $GPIO_RESET)"
	usleep 50000
done
check "board loads" wait $pid
check "reset line pulsed low, then high" has "lo.* hi *$" "$seen"
check "probe and bring-up log" eq "$(printf '%s\n' '....Registering RTL8304MB switch...' \
	'swconfig-test: registered switch0: RTL8304MB(RTL8304MB), ports 4, vlans 17, cpu port 8' \
	'rtl8304-board rtl8304-board: eth0 attached to rtl8304-board:08 (Realtek RTL8304MB)')" \
	"$(klog | grep -v 'Link is')"
check "copper PHYs 0, 3, 4 reset with 100/full/autoneg" eq "W0 W3 W4" \
	"$(sed -n 's/^W addr \([0-9]\) reg  0 .*value 0xb100$/W\1/p' $BOARD_DBG/log | tr '\n' ' ' | sed 's/ $//')"
for a in 0 3 8; do
	check "address $a bound" eq "Realtek RTL8304MB" "$(basename "$(readlink $mdio:0$a/driver)")"
done
check "address 1 keeps its id" eq 0x001cc852 "$(cat $mdio:01/phy_id)"
check "/proc/rtl8304 mode 0644" has "^-rw-r--r--" "$(ls -l /proc/rtl8304)"
check "LEDs dark after probe" eq "hi hi" "$(gpio_level $GPIO_LED1) $(gpio_level $GPIO_LED2)"
check "LED labels" eq 2 "$(grep -cE "gpio-$GPIO_LED1 .*rtl8304 lan1/wan|gpio-$GPIO_LED2 .*rtl8304 lan2" /sys/kernel/debug/gpio)"

leds() { [ "$(gpio_level $GPIO_LED1) $(gpio_level $GPIO_LED2)" = "$1" ]; }
board_link 0 up
check "port 0 up lights LED 2 only" wait_until 5 leds "hi lo"
board_link 3 up
check "port 3 up lights LED 1" wait_until 5 leds "lo lo"
board_link 0 down
check "port 0 down darkens LED 2" wait_until 5 leds "lo hi"
board_link 3 down
check "port 3 down darkens LED 1" wait_until 5 leds "hi hi"
check "MAC link up once at 100/full, never down" eq \
	"rtl8304-board rtl8304-board eth0: Link is Up - 100Mbps/Full - flow control off" \
	"$(klog | grep 'Link is')"
check "chip port 8 reported 100/full" eq "port:3 link:up speed:100baseT full-duplex " \
	"$(sw dev RTL8304MB port 3 get link)"

klog_mark
check "board unloads" rmmod rtl8304_board
check "driver unloads" rmmod rtl8304
check "unload is quiet" eq "swconfig-test: unregistered switch0" "$(klog | grep -v "Link is Down")"
check "/proc entry gone" test ! -e /proc/rtl8304
check "GPIOs freed" eq 0 "$(grep -c rtl8304 /sys/kernel/debug/gpio)"
rmmod swconfig_test
check "no leaks" board_leak_check
finish
