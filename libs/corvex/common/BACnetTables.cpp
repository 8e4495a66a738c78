// SPDX-License-Identifier: MIT
#include "corvex/common/BACnetTables.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common::BACnetTables {

namespace {

//! Names of consecutive numbers, separated by blanks.
struct Run
{
    int first;
    QLatin1StringView names;
};

// clang-format off
constexpr auto objectTypeRuns = std::to_array<Run>({
    {0, "analog-input analog-output analog-value binary-input binary-output binary-value calendar command device "
        "event-enrollment"_L1},
    {10, "file group loop multi-state-input multi-state-output notification-class program schedule averaging "
         "multi-state-value"_L1},
    {20, "trend-log life-safety-point life-safety-zone accumulator pulse-converter event-log global-group "
         "trend-log-multiple load-control structured-view"_L1},
    {30, "access-door timer access-credential access-point access-rights access-user access-zone "
         "credential-data-input network-security bitstring-value"_L1},
    {40, "characterstring-value date-pattern-value date-value datetime-pattern-value datetime-value integer-value "
         "large-analog-value octetstring-value positive-integer-value time-pattern-value"_L1},
    {50, "time-value notification-forwarder alert-enrollment channel lighting-output binary-lighting-output "
         "network-port elevator-group escalator lift"_L1},
    {60, "staging audit-log audit-reporter"_L1},
});

constexpr auto propertyRuns = std::to_array<Run>({
    {0, "acked-transitions ack-required action action-text active-text active-vt-sessions alarm-value "
        "alarm-values"_L1},
    {9, "all-writes-successful"_L1},
    {10, "apdu-segment-timeout apdu-timeout application-software-version archive bias change-of-state-count "
         "change-of-state-time notification-class"_L1},
    {19, "controlled-variable-reference"_L1},
    {20, "controlled-variable-units controlled-variable-value cov-increment date-list daylight-savings-status "
         "deadband derivative-constant derivative-constant-units description description-of-halt"_L1},
    {30, "device-address-binding device-type effective-period elapsed-active-time error-limit event-enable "
         "event-state event-type exception-schedule fault-values"_L1},
    {40, "feedback-value file-access-method file-size file-type firmware-revision high-limit inactive-text "
         "in-process instance-of integral-constant"_L1},
    {50, "integral-constant-units issue-confirmed-notifications limit-enable list-of-group-members "
         "list-of-object-property-references list-of-session-keys local-date local-time location low-limit"_L1},
    {60, "manipulated-variable-reference maximum-output max-apdu-length-accepted max-info-frames max-master "
         "max-pres-value minimum-off-time minimum-on-time minimum-output min-pres-value"_L1},
    {70, "model-name modification-date notify-type number-of-apdu-retries number-of-states object-identifier "
         "object-list object-name object-property-reference object-type"_L1},
    {81, "out-of-service output-units event-parameters polarity present-value priority priority-array "
         "priority-for-writing process-identifier"_L1},
    {90, "program-change program-location program-state proportional-constant proportional-constant-units"_L1},
    {96, "protocol-object-types-supported protocol-services-supported protocol-version read-only"_L1},
    {100, "reason-for-halt recipient recipient-list reliability relinquish-default"_L1},
    {106, "resolution segmentation-supported setpoint setpoint-reference"_L1},
    {110, "state-text status-flags system-status time-delay time-of-active-time-reset time-of-state-count-reset "
          "time-synchronization-recipients units update-interval utc-offset"_L1},
    {120, "vendor-identifier vendor-name vt-classes-supported weekly-schedule attempted-samples average-value "
          "buffer-size client-cov-increment cov-resubscription-interval current-notify-time"_L1},
    {130, "event-time-stamps log-buffer log-device-object-property enable log-interval maximum-value "
          "minimum-value notification-threshold previous-notify-time protocol-revision"_L1},
    {140, "records-since-notification record-count start-time stop-time stop-when-full total-record-count "
          "valid-samples window-interval window-samples maximum-value-timestamp"_L1},
    {150, "minimum-value-timestamp variance-value active-cov-subscriptions backup-failure-timeout "
          "configuration-files database-revision direct-reading last-restore-time maintenance-required "
          "member-of"_L1},
    {160, "mode operation-expected setting silenced tracking-value zone-members life-safety-alarm-values "
          "max-segments-accepted profile-name auto-slave-discovery"_L1},
    {170, "manual-slave-address-binding slave-address-binding slave-proxy-enable last-notify-record "
          "schedule-default accepted-modes adjust-value count count-before-change count-change-time"_L1},
    {180, "cov-period input-reference limit-monitoring-interval logging-object logging-record prescale "
          "pulse-rate scale scale-factor update-time"_L1},
    {190, "value-before-change value-set value-change-time align-intervals"_L1},
    {195, "interval-offset last-restart-reason logging-type"_L1},
    {202, "restart-notification-recipients time-of-device-restart time-synchronization-interval trigger "
          "utc-time-synchronization-recipients node-subtype node-type structured-object-list"_L1},
    {210, "subordinate-annotations subordinate-list actual-shed-level duty-window expected-shed-level "
          "full-duty-baseline"_L1},
    {218, "requested-shed-level shed-duration"_L1},
    {220, "shed-level-descriptions shed-levels state-description"_L1},
    {226, "door-alarm-state door-extended-pulse-time door-members door-open-too-long-time"_L1},
    {230, "door-pulse-time door-status door-unlock-delay-time lock-status masked-alarm-values "
          "secured-status"_L1},
    {244, "absentee-limit access-alarm-events access-doors access-event access-event-authentication-factor "
          "access-event-credential"_L1},
    {250, "access-event-time access-transaction-events accompaniment accompaniment-time activation-time "
          "active-authentication-policy assigned-access-rights authentication-factors "
          "authentication-policy-list authentication-policy-names"_L1},
    {260, "authentication-status authorization-mode belongs-to credential-disable credential-status credentials "
          "credentials-in-zone days-remaining entry-points exit-points"_L1},
    {270, "expiration-time extended-time-enable failed-attempt-events failed-attempts failed-attempts-time "
          "last-access-event last-access-point last-credential-added last-credential-added-time "
          "last-credential-removed"_L1},
    {280, "last-credential-removed-time last-use-time lockout lockout-relinquish-time master-exemption "
          "max-failed-attempts members muster-point negative-access-rules "
          "number-of-authentication-policies"_L1},
    {290, "occupancy-count occupancy-count-adjust occupancy-count-enable occupancy-exemption "
          "occupancy-lower-limit occupancy-lower-limit-enforced occupancy-state occupancy-upper-limit "
          "occupancy-upper-limit-enforced passback-exemption"_L1},
    {300, "passback-mode passback-timeout positive-access-rules reason-for-disable supported-formats "
          "supported-format-classes threat-authority threat-level trace-flag "
          "transaction-notification-class"_L1},
    {310, "user-external-identifier user-information-reference"_L1},
    {317, "user-name user-type uses-remaining"_L1},
    {320, "zone-from zone-to access-event-tag global-identifier"_L1},
    {326, "verification-time base-device-security-policy distribution-key-revision do-not-hide"_L1},
    {330, "key-sets last-key-server network-access-security-policies packet-reorder-time "
          "security-pdu-timeout security-time-window supported-security-algorithms update-key-set-timeout "
          "backup-and-restore-state backup-preparation-time"_L1},
    {340, "restore-completion-time restore-preparation-time bit-mask bit-text is-utc group-members "
          "group-member-names member-status-flags requested-update-interval covu-period"_L1},
    {350, "covu-recipients event-message-texts event-message-texts-config event-detection-enable "
          "event-algorithm-inhibit event-algorithm-inhibit-ref time-delay-normal "
          "reliability-evaluation-inhibit fault-parameters fault-type"_L1},
    {360, "local-forwarding-only process-identifier-filter subscribed-recipients port-filter "
          "authorization-exemptions allow-group-delay-inhibit channel-number control-groups execution-delay "
          "last-priority"_L1},
    {370, "write-status property-list serial-number blink-warn-enable default-fade-time default-ramp-rate "
          "default-step-increment egress-time in-progress instantaneous-power"_L1},
    {380, "lighting-command lighting-command-default-priority max-actual-value min-actual-value power "
          "transition egress-active interface-value fault-high-limit fault-low-limit"_L1},
    {390, "low-diff-limit strike-count time-of-strike-count-reset default-timeout initial-timeout "
          "last-state-change state-change-values timer-running timer-state apdu-length"_L1},
    {400, "ip-address ip-default-gateway ip-dhcp-enable ip-dhcp-lease-time ip-dhcp-lease-time-remaining "
          "ip-dhcp-server ip-dns-server bacnet-ip-global-address bacnet-ip-mode "
          "bacnet-ip-multicast-address"_L1},
    {410, "bacnet-ip-nat-traversal ip-subnet-mask bacnet-ip-udp-port bbmd-accept-fd-registrations "
          "bbmd-broadcast-distribution-table bbmd-foreign-device-table changes-pending command "
          "fd-bbmd-address fd-subscription-lifetime"_L1},
    {420, "link-speed link-speeds link-speed-autonegotiate mac-address network-interface-name network-number "
          "network-number-quality network-type routing-table virtual-mac-address-table"_L1},
    {430, "command-time-array current-command-priority last-command-time value-source value-source-array "
          "bacnet-ipv6-mode ipv6-address ipv6-prefix-length bacnet-ipv6-udp-port ipv6-default-gateway"_L1},
    {440, "bacnet-ipv6-multicast-address ipv6-dns-server ipv6-auto-addressing-enable ipv6-dhcp-lease-time "
          "ipv6-dhcp-lease-time-remaining ipv6-dhcp-server ipv6-zone-index assigned-landing-calls "
          "car-assigned-direction car-door-command"_L1},
    {450, "car-door-status car-door-text car-door-zone car-drive-status car-load car-load-units car-mode "
          "car-moving-direction car-position elevator-group"_L1},
    {460, "energy-meter energy-meter-ref escalator-mode fault-signals floor-text group-id"_L1},
    {467, "group-mode higher-deck installation-id"_L1},
    {470, "landing-calls landing-call-control landing-door-status lower-deck machine-room-id making-car-call "
          "next-stopping-floor operation-direction passenger-alarm power-mode"_L1},
    {480, "registered-car-call active-cov-multiple-subscriptions protocol-level reference-port "
          "deployed-profile-location profile-location tags subordinate-node-types subordinate-tags "
          "subordinate-relationships"_L1},
    {490, "default-subordinate-relationship represents default-present-value present-stage stages stage-names "
          "target-references audit-source-level audit-level audit-notification-recipient"_L1},
    {500, "audit-priority-filter auditable-operations delete-on-forward maximum-send-delay monitored-objects "
          "send-now floor-number device-uuid"_L1},
});

constexpr auto unitRuns = std::to_array<Run>({
    {0, "square-meters square-feet milliamperes amperes ohms volts kilovolts megavolts volt-amperes "
      "kilovolt-amperes"_L1},
    {10, "megavolt-amperes volt-amperes-reactive kilovolt-amperes-reactive megavolt-amperes-reactive "
       "degrees-phase power-factor joules kilojoules watt-hours kilowatt-hours"_L1},
    {20, "btus therms ton-hours joules-per-kilogram-dry-air btus-per-pound-dry-air cycles-per-hour "
       "cycles-per-minute hertz grams-of-water-per-kilogram-dry-air percent-relative-humidity"_L1},
    {30, "millimeters meters inches feet watts-per-square-foot watts-per-square-meter lumens luxes "
       "foot-candles kilograms"_L1},
    {40, "pounds-mass tons kilograms-per-second kilograms-per-minute kilograms-per-hour "
       "pounds-mass-per-minute pounds-mass-per-hour watts kilowatts megawatts"_L1},
    {50, "btus-per-hour horsepower tons-refrigeration pascals kilopascals bars "
       "pounds-force-per-square-inch centimeters-of-water inches-of-water millimeters-of-mercury"_L1},
    {60, "centimeters-of-mercury inches-of-mercury degrees-celsius degrees-kelvin degrees-fahrenheit "
       "degree-days-celsius degree-days-fahrenheit years months weeks"_L1},
    {70, "days hours minutes seconds meters-per-second kilometers-per-hour feet-per-second "
       "feet-per-minute miles-per-hour cubic-feet"_L1},
    {80, "cubic-meters imperial-gallons liters us-gallons cubic-feet-per-minute "
       "cubic-meters-per-second imperial-gallons-per-minute liters-per-second liters-per-minute "
       "us-gallons-per-minute"_L1},
    {90, "degrees-angular degrees-celsius-per-hour degrees-celsius-per-minute "
       "degrees-fahrenheit-per-hour degrees-fahrenheit-per-minute no-units parts-per-million "
       "parts-per-billion percent percent-per-second"_L1},
    {100, "per-minute per-second psi-per-degree-fahrenheit radians revolutions-per-minute currency1 "
        "currency2 currency3 currency4 currency5"_L1},
    {110, "currency6 currency7 currency8 currency9 currency10 square-inches square-centimeters "
        "btus-per-pound centimeters pounds-mass-per-second"_L1},
    {120, "delta-degrees-fahrenheit delta-degrees-kelvin kilohms megohms millivolts "
        "kilojoules-per-kilogram megajoules joules-per-degree-kelvin "
        "joules-per-kilogram-degree-kelvin kilohertz"_L1},
    {130, "megahertz per-hour milliwatts hectopascals millibars cubic-meters-per-hour liters-per-hour "
        "kilowatt-hours-per-square-meter kilowatt-hours-per-square-foot megajoules-per-square-meter"_L1},
    {140, "megajoules-per-square-foot watts-per-square-meter-degree-kelvin cubic-feet-per-second "
        "percent-obscuration-per-foot percent-obscuration-per-meter milliohms megawatt-hours "
        "kilo-btus mega-btus kilojoules-per-kilogram-dry-air"_L1},
    {150, "megajoules-per-kilogram-dry-air kilojoules-per-degree-kelvin megajoules-per-degree-kelvin "
        "newton grams-per-second grams-per-minute tons-per-hour kilo-btus-per-hour "
        "hundredths-seconds milliseconds"_L1},
    {160, "newton-meters millimeters-per-second millimeters-per-minute meters-per-minute "
        "meters-per-hour cubic-meters-per-minute meters-per-second-per-second amperes-per-meter "
        "amperes-per-square-meter ampere-square-meters"_L1},
    {170, "farads henrys ohm-meters siemens siemens-per-meter teslas volts-per-degree-kelvin "
        "volts-per-meter webers candelas"_L1},
    {180, "candelas-per-square-meter degrees-kelvin-per-hour degrees-kelvin-per-minute joule-seconds "
        "radians-per-second square-meters-per-newton kilograms-per-cubic-meter newton-seconds "
        "newtons-per-meter watts-per-meter-per-degree-kelvin"_L1},
});

constexpr auto dataTypeRuns = std::to_array<Run>({
    {0, "null boolean unsigned integer real double octet-string character-string bit-string enumerated date time "
        "object-identifier"_L1},
});
// clang-format on

template<typename Runs>
QList<Entry> entriesOf(const Runs &runs)
{
    QList<Entry> entries;
    for (const Run &run : runs) {
        int number = run.first;
        const QString names = run.names;
        for (const QString &name : names.split(u' ')) {
            entries.append({number++, name});
        }
    }
    return entries;
}

} // namespace

const QList<Entry> &objectTypes()
{
    static const QList<Entry> entries = entriesOf(objectTypeRuns);
    return entries;
}

const QList<Entry> &properties()
{
    static const QList<Entry> entries = entriesOf(propertyRuns);
    return entries;
}

const QList<Entry> &dataTypes()
{
    static const QList<Entry> entries = entriesOf(dataTypeRuns);
    return entries;
}

const QList<Entry> &units()
{
    static const QList<Entry> entries = entriesOf(unitRuns);
    return entries;
}

QString displayText(const QString &name)
{
    static const QStringList spellings =
        u"APDU BACnet BBMD COV COVU DHCP DNS FD ID IP IPv6 MAC NAT PDU UDP UTC UUID VT"_s.split(u' ');
    QStringList words = name.split(u'-');
    for (QString &word : words) {
        const auto known = std::find_if(spellings.begin(), spellings.end(), [&word](const QString &spelling) {
            return spelling.compare(word, Qt::CaseInsensitive) == 0;
        });
        word = known != spellings.end() ? *known : word.at(0).toUpper() + word.sliced(1);
    }
    return words.join(u' ');
}

} // namespace Halvane::Corvex::Common::BACnetTables
