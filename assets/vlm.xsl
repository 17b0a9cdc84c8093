<?xml version="1.0" encoding="UTF-8"?>
<!-- Shows a flight plan saved as XML in a browser, and on paper. -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:output method="html" encoding="UTF-8" indent="yes"/>

  <xsl:template match="/flightplan">
    <html>
      <head>
        <title><xsl:value-of select="generalinfo/title"/></title>
        <style>
          body { font: 15px/1.45 system-ui, sans-serif; color: #1c2733; background: #f3f5f7; margin: 0; }
          main { max-width: 62em; margin: 2em auto; padding: 1.5em 2.5em; background: #fff; border-radius: 8px; }
          h1 { margin: 0; font-size: 1.9em; color: #14507a; }
          h2 { margin: 1.8em 0 .5em; font-size: 1.15em; color: #14507a; border-bottom: 1px solid #c9d4dd; }
          p { margin: .2em 0; color: #5a6875; }
          dl { display: flex; flex-wrap: wrap; gap: .6em 2.2em; margin: 1em 0; }
          dt { font-size: .75em; letter-spacing: .05em; text-transform: uppercase; color: #5a6875; }
          dd { margin: 0; font-weight: 600; }
          table { width: 100%; border-collapse: collapse; font-variant-numeric: tabular-nums; }
          th { text-align: left; font-size: .75em; letter-spacing: .05em; text-transform: uppercase; color: #5a6875; }
          th, td { padding: .28em .6em .28em 0; border-bottom: 1px solid #e4e9ed; }
          .number { text-align: right; }
          .number + :not(.number) { padding-left: 1.2em; }
          .code { font-weight: 600; white-space: nowrap; }
          section { break-inside: avoid; }
          @media print { body { background: #fff; font-size: 10pt; } main { margin: 0; padding: 0; max-width: none; } }
        </style>
      </head>
      <body>
        <main>
          <xsl:apply-templates select="generalinfo"/>
          <xsl:apply-templates select="waypointinfo"/>
          <xsl:apply-templates select="airportinfo/*[*]"/>
        </main>
      </body>
    </html>
  </xsl:template>

  <!-- One figure with its name; nothing if there is none. -->
  <xsl:template name="figure">
    <xsl:param name="name"/>
    <xsl:param name="value"/>
    <xsl:param name="unit"/>
    <xsl:if test="string($value) != ''">
      <div>
        <dt><xsl:value-of select="$name"/></dt>
        <dd><xsl:value-of select="$value"/><xsl:if test="$unit != ''">&#160;<xsl:value-of select="$unit"/></xsl:if></dd>
      </div>
    </xsl:if>
  </xsl:template>

  <xsl:template match="generalinfo">
    <h1><xsl:value-of select="title"/></h1>
    <p><xsl:value-of select="../descr"/></p>
    <dl>
      <xsl:call-template name="figure"><xsl:with-param name="name">Rules</xsl:with-param><xsl:with-param name="value" select="fptype"/></xsl:call-template>
      <xsl:call-template name="figure"><xsl:with-param name="name">Aircraft</xsl:with-param><xsl:with-param name="value" select="aircraft"/></xsl:call-template>
      <xsl:call-template name="figure"><xsl:with-param name="name">Cruise</xsl:with-param><xsl:with-param name="value" select="cruisingalt"/><xsl:with-param name="unit">ft</xsl:with-param></xsl:call-template>
      <xsl:call-template name="figure"><xsl:with-param name="name">Speed</xsl:with-param><xsl:with-param name="value" select="cruisingspeed"/><xsl:with-param name="unit">kt</xsl:with-param></xsl:call-template>
      <xsl:call-template name="figure"><xsl:with-param name="name">Distance</xsl:with-param><xsl:with-param name="value" select="number(distance)"/><xsl:with-param name="unit">NM</xsl:with-param></xsl:call-template>
      <xsl:call-template name="figure"><xsl:with-param name="name">Time</xsl:with-param><xsl:with-param name="value" select="flighttime"/></xsl:call-template>
    </dl>
    <xsl:if test="fuel/totalfuel != ''">
      <section>
        <h2>Fuel (<xsl:value-of select="fuel/fueltype"/>)</h2>
        <dl>
          <xsl:for-each select="fuel/*[position() &gt; 1]">
            <xsl:call-template name="figure">
              <xsl:with-param name="name" select="substring-before(name(), 'fuel')"/>
              <xsl:with-param name="value" select="."/>
            </xsl:call-template>
          </xsl:for-each>
        </dl>
      </section>
    </xsl:if>
  </xsl:template>

  <xsl:template match="waypointinfo">
    <h2>Route</h2>
    <table>
      <thead>
        <tr>
          <th>Ident</th><th>Name</th><th>Airway</th><th class="number">Frequency</th><th class="number">Latitude</th>
          <th class="number">Longitude</th><th class="number">Course</th><th class="number">NM</th><th class="number">Time</th>
        </tr>
      </thead>
      <tbody>
        <xsl:for-each select="waypoint">
          <tr>
            <td class="code"><xsl:value-of select="wpid"/></td>
            <td><xsl:value-of select="wpname"/></td>
            <td>
              <xsl:value-of select="wpairway"/>
              <xsl:if test="wpkind = 'sid'">SID</xsl:if>
              <xsl:if test="wpkind = 'star'">STAR</xsl:if>
            </td>
            <td class="number"><xsl:value-of select="wpfreq"/></td>
            <td class="number"><xsl:value-of select="format-number(wplat, '0.0000')"/></td>
            <td class="number"><xsl:value-of select="format-number(wplon, '0.0000')"/></td>
            <xsl:choose>
              <xsl:when test="wpkind = 'departure'"><td/><td/><td/></xsl:when>
              <xsl:otherwise>
                <td class="number"><xsl:value-of select="wpcourse"/>&#176;</td>
                <td class="number"><xsl:value-of select="wpdistance"/></td>
                <td class="number"><xsl:value-of select="wptime"/></td>
              </xsl:otherwise>
            </xsl:choose>
          </tr>
        </xsl:for-each>
      </tbody>
    </table>
  </xsl:template>

  <!-- departureinfo, destinationinfo and alternateinfo: their elements begin with the same word. -->
  <xsl:template match="airportinfo/*">
    <xsl:variable name="which" select="substring-before(name(), 'info')"/>
    <section>
      <h2>
        <xsl:choose>
          <xsl:when test="$which = 'departure'">Departure: </xsl:when>
          <xsl:when test="$which = 'destination'">Destination: </xsl:when>
          <xsl:otherwise>Alternate: </xsl:otherwise>
        </xsl:choose>
        <xsl:value-of select="*[name() = concat($which, 'id')]"/>&#160;
        <xsl:value-of select="*[name() = concat($which, 'name')]"/>
      </h2>
      <xsl:if test="*[name() = concat($which, 'city') or name() = concat($which, 'country')] != ''">
        <p>
          <xsl:value-of select="*[name() = concat($which, 'city')]"/>&#160;
          <xsl:value-of select="*[name() = concat($which, 'country')]"/>
        </p>
      </xsl:if>
      <dl>
        <xsl:call-template name="figure"><xsl:with-param name="name">Start</xsl:with-param><xsl:with-param name="value" select="departureposition"/></xsl:call-template>
        <xsl:call-template name="figure"><xsl:with-param name="name">Latitude</xsl:with-param><xsl:with-param name="value" select="*[name() = concat($which, 'lat')]"/></xsl:call-template>
        <xsl:call-template name="figure"><xsl:with-param name="name">Longitude</xsl:with-param><xsl:with-param name="value" select="*[name() = concat($which, 'lon')]"/></xsl:call-template>
        <xsl:call-template name="figure"><xsl:with-param name="name">Elevation</xsl:with-param><xsl:with-param name="value" select="number(*[name() = concat($which, 'alt')])"/><xsl:with-param name="unit">ft</xsl:with-param></xsl:call-template>
        <xsl:call-template name="figure"><xsl:with-param name="name">Variation</xsl:with-param><xsl:with-param name="value" select="*[name() = concat($which, 'magvar')]"/><xsl:with-param name="unit">&#176;</xsl:with-param></xsl:call-template>
        <xsl:for-each select="*[name() = concat($which, 'freq')]/*">
          <xsl:call-template name="figure">
            <xsl:with-param name="name" select="substring-after(name(), $which)"/>
            <xsl:with-param name="value" select="."/>
          </xsl:call-template>
        </xsl:for-each>
      </dl>
      <xsl:if test="*[name() = concat($which, 'rwy')]">
        <table>
          <thead><tr><th>Runway</th><th class="number">Heading</th><th class="number">Length ft</th><th class="number">Width ft</th><th>ILS</th></tr></thead>
          <tbody>
            <xsl:for-each select="*[name() = concat($which, 'rwy')]">
              <xsl:variable name="end" select="rwyid"/>
              <tr>
                <td class="code"><xsl:value-of select="rwyid"/></td>
                <td class="number"><xsl:value-of select="rwyheading"/>&#176;</td>
                <td class="number"><xsl:value-of select="rwylength"/></td>
                <td class="number"><xsl:value-of select="rwywidth"/></td>
                <td>
                  <xsl:for-each select="../*[name() = concat($which, 'ils')][ilsrwyid = $end]">
                    <xsl:value-of select="ilscode"/>&#160;<xsl:value-of select="ilsfreq"/>&#160;<xsl:value-of select="ilsglideangle"/>&#176;
                  </xsl:for-each>
                </td>
              </tr>
            </xsl:for-each>
          </tbody>
        </table>
      </xsl:if>
    </section>
  </xsl:template>
</xsl:stylesheet>
